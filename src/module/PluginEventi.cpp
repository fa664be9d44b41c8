#include "config/clsConfig.h"
#include "estimates/clsPreventivi.h"
#include "host/Passo.h"
#include "host/context.h"
#include "host/contract/Forms.h"
#include "host/contract/Host.h"
#include "host/contract/Prescrizione.h"
#include "host/contract/View.h"
#include "host/modAggiorna.h"
#include "invoicing/clsFatture.h"
#include "module/Contesto.h"
#include "module/Plugin.h"
#include "module/modPannelli.h"
#include "payments/clsPagamenti.h"
#include "periodontal/clsParadontale.h"
#include "store/modAvvisi.h"
#include "treatments/clsTrattamenti.h"

#include <QHash>

namespace {

constexpr int MEDICINALE = 1;

} // namespace

Plugin::Gestore Plugin::gestore(const QString& nome) {
    static const QHash<QString, Gestore> gestori = {
        {QStringLiteral("registrazione"), &Plugin::registrazione},
        {QStringLiteral("fine"), &Plugin::fine},
        {QStringLiteral("ambulatorio.ready"), &Plugin::ambulatorioReady},
        {QStringLiteral("form.load"), &Plugin::formLoad},
        {QStringLiteral("chiuditutto"), &Plugin::chiudiTutto},
        {QStringLiteral("execute"), &Plugin::execute},
        {QStringLiteral("mainribbonbar.returntab"), &Plugin::returnTab},
        {QStringLiteral("mainribbonbar.activetab"), &Plugin::activeTab},
        {QStringLiteral("listapannelli"), &Plugin::listaPannelli},
        {QStringLiteral("arcpannelli.daiparent"), &Plugin::daiParent},
        {QStringLiteral("prescrizione.add"), &Plugin::prescrizioneAdd},
    };
    return gestori.value(nome.toLower(), nullptr);
}

void Plugin::evento(const QString& nome, host::Host* mittente, QVariantList& args) {
    const Gestore trovato = ended_ ? nullptr : gestore(nome);
    if (!trovato) return;
    // Before the start there is nothing that could answer, nor after another run has begun.
    const bool running = contesto_ && contesto_->isCurrent();
    if (!running && trovato != &Plugin::registrazione && trovato != &Plugin::fine) return;
    passo([&] { (this->*trovato)(mittente, args); });
}

void Plugin::registrazione(host::Host* mittente, QVariantList& args) {
    Init(mittente, args.value(0));
}

void Plugin::fine(host::Host*, QVariantList&) {
    Termina();
}

void Plugin::ambulatorioReady(host::Host*, QVariantList&) {
    MostraAppuntiImportanti();
}

void Plugin::formLoad(host::Host*, QVariantList& args) {
    auto* form = args.value(0).value<host::HostForm*>();
    if (!form) return;
    passo([&] {
        auto* principale = dynamic_cast<host::MainForm*>(form);
        if (form->Name() == QLatin1String("frmMain") && principale) oConfig->initGUI(*principale);
    });
    passo([&] {
        if (form->Name() == QLatin1String("frmAmbulatorio")) caricataAmbulatorio();
    });
}

// The patient has changed, or the patient's desk has opened.
void Plugin::caricataAmbulatorio() {
    passo([] { oPreventivi->Refresh(); });
    passo([] { oTrattamenti->Refresh(); });
    passo([] { oParadontale->Refresh(); });
    passo([] { oFatture->Refresh(); });
    passo([] { oPagamenti->Refresh(); });
    passo([] { oConfig->RefreshGUI(true); });
    passo([] { RefreshGraficaPreventivi(); });
    passo([] { RefreshGraficaTrattamenti(); });
    passo([] { RefreshGraficaFatture(); });
    passo([] { RefreshGraficaPagamenti(); });
}

void Plugin::chiudiTutto(host::Host*, QVariantList&) {
    const QString titolo = QString::fromUtf16(TITOLO_CORVALA);
    passo([] { oConfig->RefreshGUI(false); });
    passo([&] { oHost->Framework().CloseChild(titolo + QStringLiteral(": Sintesi ODONTOIATRICA")); });
    passo([&] { oHost->Framework().CloseChild(titolo + QStringLiteral(": Elenco IMMAGINI")); });
}

void Plugin::execute(host::Host*, QVariantList& args) {
    bool numero = false;
    const qint32 id = args.value(0).toInt(&numero);
    if (numero) contesto_->comandi().EseguiComando(id);
}

void Plugin::returnTab(host::Host*, QVariantList& args) {
    if (!args.isEmpty()) args[0] = true;
}

void Plugin::activeTab(host::Host*, QVariantList& args) {
    if (args.value(0).toString() == QLatin1String("Odontoiatria")) oConfig->MainMDITab();
}

void Plugin::listaPannelli(host::Host*, QVariantList& args) {
    const bool raccolta = !args.isEmpty() && args[0].typeId() == QMetaType::QStringList;
    if (raccolta) args[0] = args[0].toStringList() + NomiPannelli();
}

void Plugin::daiParent(host::Host*, QVariantList& args) {
    host::View* vista = VistaPannello(args.value(0).toString());
    if (!vista) return;
    if (args.size() > 1) args[1] = QVariant::fromValue<qint16>(0);
    if (args.size() > 2) args[2] = QVariant::fromValue(vista);
}

void Plugin::prescrizioneAdd(host::Host*, QVariantList& args) {
    auto* prescrizione = args.value(0).value<host::Prescrizione*>();
    if (!prescrizione || !oConfig->DefaultRicetteBianche()) return;
    passo([&] {
        const bool mutuabile = prescrizione->tipo() == MEDICINALE && prescrizione->classe() == QLatin1String("A");
        if (mutuabile) prescrizione->setClasse(QStringLiteral("C"));
    });
    passo([&] { prescrizione->setTipostampa(1); });
}
