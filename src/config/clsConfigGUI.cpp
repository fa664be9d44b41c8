#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Forms.h"
#include "host/contract/Host.h"
#include "platform/Files.h"

#include <QStringList>

using host::BottoneRibbon;
using host::RibbonControl;
using host::StileBottone;
using platform::XmlNode;

namespace {

const char* const PATIENT_PLAN = "CRVL0303";
const char* const NEW_PLAN = "CRVL0302";
const char* const SUMMARY = "CRVL0701";
const char* const PARADONTALE = "CRVL0702";

constexpr qint32 MENU_CONTROL = 4;
constexpr qint32 DESK_CONTROL = 10;
constexpr qint32 STYLE_CONTROL = 12;
constexpr qint32 OTHER_MENU_CONTROL = 74;
constexpr qint32 HIDDEN_CONTROLS[] = {10, 11, 20, 69, 70, 71, 279, 417, 418, 419, 420};

/// An answer that could not be read counts as yes: the command reads anew, and says what is wrong.
bool unlessUnread(const Hooks::OfCommand& question, const QString& key) {
    try {
        return question && question(key);
    } catch (const host::HostError&) {
        return true;
    }
}

// What a dental practice has no use for.
const QStringList& hiddenEntries() {
    static const QStringList entries = {
        QStringLiteral("Accessi ADI/ADP/ADR"),
        QStringLiteral("Prestazioni PPIP"),
        QStringLiteral("Vaccinazioni"),
        QStringLiteral("Campagna Antinfluenzale"),
        QStringLiteral("Gestione Integrata"),
        QStringLiteral("Covid 19"),
        QStringLiteral("Pazienti Fragili"),
        QStringLiteral("Visite Domiciliari"),
        QStringLiteral("PDTA"),
        QStringLiteral("Patient Summary"),
        QStringLiteral("Fatture"),
        QStringLiteral("Spesa per paziente"),
    };
    return entries;
}

RibbonControl* control(qint32 id) {
    return id == 0 ? nullptr : oHost->Framework().FindRibbonControl(id);
}

void enable(qint32 id, bool enabled) {
    if (RibbonControl* found = control(id)) found->setEnabled(enabled);
}

// A command whose window is still to come has no action and stays grey, whatever the configuration says.
bool hasAction(const QString& key) {
    return hooks.commandHasAction && hooks.commandHasAction(key);
}
bool hasAction(const char* key) {
    return hasAction(QLatin1String(key));
}

void hideEntries(qint32 id) {
    RibbonControl* menu = control(id);
    if (!menu) return;
    for (RibbonControl* entry : menu->CommandBarControls()) {
        if (hiddenEntries().contains(entry->Caption())) entry->setVisible(false);
    }
}

StileBottone style(const QString& text) {
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    const bool isKnown = isNumber && value >= 0 && value <= static_cast<int>(StileBottone::IconaSopraDidascalia);
    return isKnown ? static_cast<StileBottone>(value) : StileBottone::IconaEDidascalia;
}

void loadPicture(const QString& name, qint32 id) {
    oHost->Framework().AddFileBitmap(sAppPath + QStringLiteral("/Styles/") + name + QStringLiteral(".png"), id);
}

} // namespace

void clsConfig::initGUI(host::MainForm& frmMain) {
    for (qint32 CommandIds::*id : {&CommandIds::group, &CommandIds::summary, &CommandIds::periodontal,
                                   &CommandIds::menu, &CommandIds::menuEstimates, &CommandIds::menuInvoicing,
                                   &CommandIds::menuImages, &CommandIds::menuSummary, &CommandIds::menuPeriodontal}) {
        commandIds.*id = oHost->Framework().GetNewID();
    }
    if (!UtilizzoMMG()) slimRibbon(frmMain);
    deskGroup();
    mainMenu(frmMain);
    layoutAmbulatorio();
    host::RibbonTab* tab = oHost->Framework().InsertRibbonTab(QStringLiteral("Odontoiatria"));
    if (!tab) return;
    logoGroup(*tab);
    commandGroups(*tab);
    toolGroup(*tab);
}

void clsConfig::slimRibbon(host::MainForm& frmMain) const {
    for (host::Pane* panel : frmMain.DockingPane1()) {
        if (panel->Title().toLower() == QLatin1String("menu principale")) panel->Close();
    }
    hideEntries(MENU_CONTROL);
    for (const qint32 id : HIDDEN_CONTROLS) {
        if (RibbonControl* found = control(id)) found->setVisible(false);
    }
    if (RibbonControl* found = control(STYLE_CONTROL)) found->setStyle(StileBottone::IconaSopraDidascalia);
    hideEntries(OTHER_MENU_CONTROL);
}

void clsConfig::deskGroup() const {
    RibbonControl* neighbour = control(DESK_CONTROL);
    host::RibbonTab* groups = neighbour ? neighbour->RibbonGroupGroups() : nullptr;
    host::RibbonGroup* group = groups ? groups->AddGroup(QStringLiteral("Odontoiatria"), commandIds.group) : nullptr;
    if (!group) return;
    // One tooltip for both, and spelt so: practices know the buttons by it.
    const QString tooltip = QStringLiteral("intesi di tutti gli intervernti effettuati");
    loadPicture(QStringLiteral("CRVL0701"), commandIds.summary);
    group->InsertGroupButton({commandIds.summary,
                              {},
                              QStringLiteral("Sintesi Odontoiatrica"),
                              tooltip,
                              StileBottone::IconaSopraDidascalia,
                              false,
                              false});
    loadPicture(QStringLiteral("CRVL0702"), commandIds.periodontal);
    group->InsertGroupButton({commandIds.periodontal,
                              {},
                              QStringLiteral("Cartella Paradontale"),
                              tooltip,
                              StileBottone::IconaSopraDidascalia,
                              false,
                              false});
}

void clsConfig::mainMenu(host::MainForm& frmMain) const {
    const auto key = [](qint32 id) { return QLatin1Char('I') + QString::number(id); };
    const QString menu = key(commandIds.menu);
    frmMain.AddMenu(menu, QStringLiteral("ODONTOIATRIA"), QString());
    const struct {
        qint32 id;
        QString caption;
        const char* key;
    } entries[] = {
        {commandIds.menuSummary, QStringLiteral("Sintesi Odontoiatrica"), SUMMARY},
        {commandIds.menuPeriodontal, QStringLiteral("Cartella Paradontale"), PARADONTALE},
        {commandIds.menuImages, QStringLiteral("Immagini"), "CRVL0501"},
        {commandIds.menuEstimates, QStringLiteral("Preventivi"), "CRVL0101"},
        {commandIds.menuInvoicing, QStringLiteral("Fatturazione"), "CRVL0201"},
    };
    for (const auto& entry : entries) {
        frmMain.AddMenu(key(entry.id), entry.caption, menu);
        if (!hasAction(entry.key)) enable(entry.id, false);
    }
}

void clsConfig::layoutAmbulatorio() const {
    const QString path = sAppPath + QStringLiteral("/layoutAmbulatorio.xml");
    if (oHost->Utente().codiceAttivita() != QLatin1String("OD") || !platform::files::exists(path)) return;
    platform::XmlDocument layout;
    if (!layout.loadFile(path)) return;
    const XmlNode node = layout.selectOne("//Layout");
    if (node) oHost->Framework().setLayoutPredefinito(node.xml());
}

void clsConfig::logoGroup(host::RibbonTab& tab) {
    const qint32 id = IDService(QStringLiteral("CRVL.main"));
    host::RibbonGroup* group = tab.AddGroup(QStringLiteral("Corvala Plugin"), id);
    if (!group) return;
    loadPicture(QStringLiteral("CorvalaLogo"), id);
    group->InsertGroupControl(id);
}

void clsConfig::commandGroups(host::RibbonTab& tab) {
    for (const XmlNode& node : document_.root().select("gui/groups/group")) {
        host::RibbonGroup* group = tab.InsertTabGroup(node.attribute("caption", QString()));
        if (!group) continue;
        for (const XmlNode& button : node.select("button"))
            insertButton(*group, button);
    }
}

void clsConfig::insertButton(host::RibbonGroup& group, const XmlNode& node) {
    BottoneRibbon button;
    button.key = node.attribute("id", QString());
    button.id = IDService(button.key);
    const bool sheet = UnicaSchedaTrattamento();
    if (button.id == 0 || (sheet && button.key == QLatin1String(NEW_PLAN))) return;
    button.caption = node.attribute("caption", QString());
    button.tooltip = node.attribute("tooltiptext", QString());
    button.style = style(node.attribute("style", QStringLiteral("3")));
    button.begingroup = node.attribute("begingroup", QStringLiteral("0")) == QLatin1String("1");
    button.enabled = UsableService(button.id) && !PatientService(button.id) && hasAction(button.key);
    if (sheet && button.key == QLatin1String(PATIENT_PLAN)) {
        button.caption = QStringLiteral("Apri");
        button.tooltip = QStringLiteral("Consulta il piano del paziente");
        button.begingroup = true;
    }
    loadPicture(button.key, button.id);
    group.InsertGroupButton(button);
}

void clsConfig::toolGroup(host::RibbonTab& tab) {
    struct Tool {
        const char* key;
        QString caption;
        QString tooltip;
        QString picture;
    };
    const Tool tools[] = {
        {"CRVL.main.refresh", QStringLiteral("Aggiorna"), QStringLiteral("Aggiorna i dati visualizzati"),
         QStringLiteral("CorvalaRefresh")},
        {"CRVL.main.setup", QStringLiteral("Opzioni"), QStringLiteral("Configurazione della procedura"),
         QStringLiteral("CorvalaConfig")},
        {"CRVL.main.about", QStringLiteral("About"), QStringLiteral("Informazioni sulla procedura"),
         QStringLiteral("CorvalaAbout")},
    };
    host::RibbonGroup* group = tab.InsertTabGroup(QStringLiteral("Strumenti"));
    if (!group) return;
    for (const Tool& tool : tools) {
        const QString key = QLatin1String(tool.key);
        const qint32 id = IDService(key);
        if (id == 0) continue;
        loadPicture(tool.picture, id);
        group->InsertGroupButton({id, key, tool.caption, tool.tooltip});
    }
}

void clsConfig::RefreshGUI(bool enabled) {
    enable(commandIds.summary, enabled && hasAction(SUMMARY));
    enable(commandIds.periodontal, enabled && hasAction(PARADONTALE));
    for (const clsItemService& service : ListaServices()) {
        if (!service.Patient || !service.Enabled || !hasAction(service.Key)) continue;
        enable(service.ID, enabled && unlessUnread(hooks.commandFitsPatient, service.Key));
    }
}

void clsConfig::RefreshGUITrattamento() {
    const QString key = QLatin1String(PATIENT_PLAN);
    if (UnicaSchedaTrattamento() || !UsableService(key)) return;
    enable(IDService(key), currentPatient() && unlessUnread(hooks.commandFitsRecords, key));
}
