#include "config/clsConfig.h"
#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Forms.h"
#include "host/contract/Host.h"
#include "host/contract/Prescrizione.h"
#include "host/contract/View.h"
#include "module/Context.h"
#include "module/Plugin.h"
#include "module/Rooms.h"
#include "store/modAvvisi.h"

#include <QHash>

namespace {

constexpr int MEDICINE = 1;

} // namespace

Plugin::Handler Plugin::handler(const QString& name) {
    static const QHash<QString, Handler> handlers = {
        {QStringLiteral("registrazione"), &Plugin::registration},
        {QStringLiteral("fine"), &Plugin::end},
        {QStringLiteral("ambulatorio.ready"), &Plugin::deskReady},
        {QStringLiteral("form.load"), &Plugin::formLoad},
        {QStringLiteral("chiuditutto"), &Plugin::closeAll},
        {QStringLiteral("execute"), &Plugin::execute},
        {QStringLiteral("mainribbonbar.returntab"), &Plugin::returnTab},
        {QStringLiteral("mainribbonbar.activetab"), &Plugin::activeTab},
        {QStringLiteral("listapannelli"), &Plugin::panelList},
        {QStringLiteral("arcpannelli.daiparent"), &Plugin::giveParent},
        {QStringLiteral("prescrizione.add"), &Plugin::prescriptionAdded},
    };
    return handlers.value(name.toLower(), nullptr);
}

void Plugin::evento(const QString& name, host::Host* sender, QVariantList& args) {
    const Handler found = ended_ ? nullptr : handler(name);
    if (!found) return;
    // Before the start there is nothing that could answer, nor after another run has begun.
    const bool running = context_ && context_->isCurrent();
    if (!running && found != &Plugin::registration && found != &Plugin::end) return;
    step([&] { (this->*found)(sender, args); });
}

void Plugin::registration(host::Host* sender, QVariantList& args) {
    Init(sender, args.value(0));
}

void Plugin::end(host::Host*, QVariantList&) {
    Termina();
}

void Plugin::deskReady(host::Host*, QVariantList&) {
    MostraAppuntiImportanti();
}

void Plugin::formLoad(host::Host*, QVariantList& args) {
    auto* form = args.value(0).value<host::HostForm*>();
    if (!form) return;
    step([&] {
        auto* mainForm = dynamic_cast<host::MainForm*>(form);
        if (form->Name() == QLatin1String("frmMain") && mainForm) oConfig->initGUI(*mainForm);
    });
    step([&] {
        if (form->Name() == QLatin1String("frmAmbulatorio")) deskLoaded();
    });
}

// The patient has changed, or the patient's desk has opened.
void Plugin::deskLoaded() {
    context_->rooms().forget();
    step([] { oConfig->RefreshGUI(true); });
    context_->rooms().refreshMarks();
}

void Plugin::closeAll(host::Host*, QVariantList&) {
    const QString title = QString::fromUtf16(CORVALA_TITLE);
    step([] { oConfig->RefreshGUI(false); });
    step([&] { oHost->Framework().CloseChild(title + QStringLiteral(": Sintesi ODONTOIATRICA")); });
    step([&] { oHost->Framework().CloseChild(title + QStringLiteral(": Elenco IMMAGINI")); });
}

void Plugin::execute(host::Host*, QVariantList& args) {
    bool isNumber = false;
    const qint32 id = args.value(0).toInt(&isNumber);
    if (isNumber) context_->commands().EseguiComando(id);
}

void Plugin::returnTab(host::Host*, QVariantList& args) {
    if (!args.isEmpty()) args[0] = true;
}

void Plugin::activeTab(host::Host*, QVariantList& args) {
    if (args.value(0).toString() == QLatin1String("Odontoiatria")) oConfig->MainMDITab();
}

void Plugin::panelList(host::Host*, QVariantList& args) {
    const bool isCollecting = !args.isEmpty() && args[0].typeId() == QMetaType::QStringList;
    if (isCollecting) args[0] = args[0].toStringList() + context_->rooms().panelNames();
}

void Plugin::giveParent(host::Host*, QVariantList& args) {
    host::View* view = context_->rooms().panelView(args.value(0).toString());
    if (!view) return;
    if (args.size() > 1) args[1] = QVariant::fromValue<qint16>(0);
    if (args.size() > 2) args[2] = QVariant::fromValue(view);
}

void Plugin::prescriptionAdded(host::Host*, QVariantList& args) {
    auto* prescription = args.value(0).value<host::Prescrizione*>();
    if (!prescription || !oConfig->DefaultRicetteBianche()) return;
    step([&] {
        const bool reimbursable = prescription->tipo() == MEDICINE && prescription->classe() == QLatin1String("A");
        if (reimbursable) prescription->setClasse(QStringLiteral("C"));
    });
    step([&] { prescription->setTipostampa(1); });
}
