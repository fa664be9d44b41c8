#include "store/modLock.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "store/modFile.h"

#include <QFile>
#include <QStringList>

namespace {

// Empty without a shared folder: the mark would lie wherever the program was started, and nobody would find it again.
QString lockPath(const QString& tipo, const QString& id) {
    if (oConfig->DBPAth().isEmpty()) return {};
    return oConfig->DBPAth() + id + QLatin1Char('-') + tipo + QStringLiteral(".lck");
}

} // namespace

void CreaLock(const QString& tipo, const QString& id) {
    ScriviFile(lockPath(tipo, id), platform::now().toString(QStringLiteral("dd/MM/yyyy HH:mm:ss")));
}

bool EsisteLock(const QString& tipo, const QString& id) {
    return FileEsiste(lockPath(tipo, id));
}

bool RimuoviLock(const QString& tipo, const QString& id) {
    const QString path = lockPath(tipo, id);
    if (!FileEsiste(path)) return true;
    if (!platform::files::remove(path)) {
        platform::dialogs().message(QStringLiteral("Attenzione! Errore critico in eliminazione LOCK ") + tipo +
                                        QLatin1Char('!'),
                                    platform::MB_CRITICAL, QStringLiteral("Tessara 5000"));
    }
    return false; // Also after a removal: true only says that there was nothing to remove.
}

bool RimuoviTuttiLock() {
    const QString folder = oConfig->DBPAth();
    const QStringList names = platform::files::list(folder, QStringLiteral("*.lck"));
    for (const QString& name : names) {
        if (name.startsWith(QLatin1Char('.'))) continue;
        QFile file(platform::files::resolve(folder + name));
        if (file.remove()) continue;
        platform::dialogs().message(QStringLiteral("Attenzione! Errore critico in eliminazione LOCK!\r\nFile: ") +
                                        name + QStringLiteral("\r\nErrore: ") + file.errorString(),
                                    platform::MB_CRITICAL, QString::fromUtf16(TITOLO_CORVALA));
        return false;
    }
    return true;
}
