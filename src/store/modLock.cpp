#include "store/modLock.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/SingleByteText.h"
#include "store/modFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

// Empty without a shared folder: the mark would lie wherever the program was started, and nobody would find it again.
QString lockPath(const QString& kind, const QString& id) {
    return oConfig ? oConfig->dataFile(id + QLatin1Char('-') + kind + QStringLiteral(".lck")) : QString();
}

bool cannotRemove(const QString& file, const QString& error) {
    platform::dialogs().message(QStringLiteral("Attenzione! Errore critico in eliminazione LOCK!\r\nFile: ") + file +
                                    QStringLiteral("\r\nErrore: ") + error,
                                platform::MB_CRITICAL, QString::fromUtf16(CORVALA_TITLE));
    return false;
}

// Test and creation in one step of the file system, which all workstations share.
bool writeNew(const QString& path, const QString& text) {
    QFile file(platform::files::resolve(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return false;
    file.write(platform::toSingleByte(text)); // for who looks at the folder; the mark is the file itself
    file.close();
    platform::files::shareAsFolder(path); // for the others, who see it and may have to take it away
    return true;
}

} // namespace

bool CreaLock(const QString& kind, const QString& id) {
    const QString path = lockPath(kind, id);
    if (path.isEmpty()) return true;
    const QString now = platform::now().toString(QStringLiteral("dd/MM/yyyy HH:mm:ss"));
    // A second time, since a mark may go between the refusal and the look at it.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (writeNew(path, now)) return true;
        if (FileEsiste(path)) return false;
    }
    return true;
}

bool EsisteLock(const QString& kind, const QString& id) {
    return FileEsiste(lockPath(kind, id));
}

bool RimuoviLock(const QString& kind, const QString& id) {
    const QString path = lockPath(kind, id);
    if (!FileEsiste(path)) return true;
    if (!platform::files::remove(path)) {
        platform::dialogs().message(QStringLiteral("Attenzione! Errore critico in eliminazione LOCK ") + kind +
                                        QLatin1Char('!'),
                                    platform::MB_CRITICAL, QStringLiteral("Tessara 5000"));
    }
    return false; // Also after a removal: true only says that there was nothing to remove.
}

bool RimuoviTuttiLock() {
    if (!oConfig) return false;
    const QString all = QStringLiteral("*.lck");
    const QString folder = oConfig->DBPAth();
    // Out of reach is not the same as without locks.
    if (!platform::files::isFolder(folder) || !QFileInfo(platform::files::resolve(folder)).isReadable())
        return cannotRemove(QDir::toNativeSeparators(oConfig->dataFile(all)),
                            QStringLiteral("la cartella non c'è o non si può leggere"));
    for (const QString& name : platform::files::list(folder, all)) {
        if (name.startsWith(QLatin1Char('.'))) continue;
        QFile file(platform::files::resolve(oConfig->dataFile(name)));
        if (!file.remove()) return cannotRemove(name, file.errorString());
    }
    return true;
}
