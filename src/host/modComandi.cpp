#include "host/modComandi.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modIcone.h"
#include "platform/Dialogs.h"
#include "platform/FormRegistry.h"

#include <QWidget>
#include <memory>

namespace {

/// An entry of the desk's tab or of the main menu, with the command behind it.
struct VoceFissa {
    qint32 IdComandi::*id;
    const char* key;
    bool conPaziente;
};

// The entry of the images tests for a patient, the ribbon's "CRVL0501" does not: the difference is meant.
constexpr VoceFissa VOCI_FISSE[] = {
    {&IdComandi::sintesi, "CRVL0701", true},         {&IdComandi::menuSintesi, "CRVL0701", true},
    {&IdComandi::paradontale, "CRVL0702", true},     {&IdComandi::menuParadontale, "CRVL0702", true},
    {&IdComandi::menuPreventivi, "CRVL0101", false}, {&IdComandi::menuFatturazione, "CRVL0201", false},
    {&IdComandi::menuImmagini, "CRVL0501", true},
};

} // namespace

void Comandi::EseguiComando(qint32 id) const {
    if (id == 0) return;
    const QString key = chiaveServizio_ ? chiaveServizio_(id) : QString();
    if (key.isEmpty() && eseguiFisso(id)) return;
    esegui(key);
}

bool Comandi::eseguiFisso(qint32 id) const {
    for (const VoceFissa& voce : VOCI_FISSE) {
        if (idComandi.*voce.id != id) continue;
        if (voce.conPaziente && !PazienteAperto()) {
            platform::dialogs().message(QStringLiteral("Selezionare prima un paziente"), platform::MB_INFORMATION,
                                        QStringLiteral("Tessara 5000"));
            return true;
        }
        esegui(QLatin1String(voce.key));
        return true;
    }
    return false;
}

void Comandi::esegui(const QString& key) const {
    const auto azione = azioni_.constFind(key);
    if (azione != azioni_.cend()) (*azione)();
}

void ApriFinestra(const QString& testo, const std::function<QWidget*()>& crea) {
    if (!oHost) return;
    host::Framework& framework = oHost->Framework();
    const QString caption = QString::fromUtf16(TITOLO_CORVALA) + testo;
    if (framework.OpenChild(QStringLiteral("frmMDI"), caption)) return;

    std::unique_ptr<QWidget> nuova(crea());
    if (!nuova) return;
    const QString nome = nuova->objectName();
    nuova->setWindowIcon(IconaModulo()); // before the host adopts it: a tab of its own may copy the icon then
    auto* form = qobject_cast<QWidget*>(framework.CreateChildForm(nuova.get()));
    nuova.release(); // the host's from here on
    if (!form) return;
    form->setWindowTitle(caption);
    if (auto* trovata = qobject_cast<QWidget*>(platform::FormRegistry::find(nome))) trovata->show();
}
