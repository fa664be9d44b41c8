#include "desk/shell/DeskParts.h"

#include "desk/clinical/ClinicalRooms.h"
#include "desk/clinical/FreeDataWindow.h"
#include "desk/clinical/ShowFile.h"
#include "desk/people/PatientEditor.h"
#include "desk/people/PatientSearch.h"
#include "desk/shell/ChildWindows.h"
#include "desk/shell/DeskCommands.h"
#include "desk/shell/DeskLog.h"
#include "desk/shell/PatientDesk.h"
#include "desk/shell/RibbonBar.h"
#include "host/contract/PluginInterface.h"
#include "platform/Dialogs.h"
#include "platform/Guarded.h"

#include <QCoreApplication>
#include <QDir>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

namespace desk {

namespace {

constexpr int STATUS_MILLISECONDS = 15000;

void enablePatientCommands(CommandList& commands, bool enabled) {
    for (const DeskCommand& command : deskCommands())
        if (command.is(DeskCommand::NEEDS_PATIENT)) commands.find(command.id)->setEnabled(enabled);
}

} // namespace

Desk::Parts::Parts(std::unique_ptr<Practice> openPractice)
    : practice(std::move(openPractice))
    , settings(settingsWithFont())
    , window(commands)
    , reports(practice->freeData())
    , framework(window, commands,
                {.newPatient = [this] { return practice->newPatient(); },
                 .openPatient = [this](const QString& id) { return openPatient(id); },
                 .schema = [this] { return practice->database().schema(); },
                 .viewReport = [this](const QString& id, const QMap<QString, QVariant>& variables,
                                      bool preview) { reports.view(id, variables, preview, &window); }})
    , archive(*practice, {.isPanelLoaded = [this](const QString& name) { return isPanelLoaded(name); },
                          .choosePatient = [this](const QString& value,
                                                  const QString& column) { return choosePatient(value, column); },
                          .beforeFreeData = [this] { reports.provideLayouts(); }})
    , host(*practice, framework, archive)
    , watch(practice->database(), window, [this] { refreshPanelsSoon(); })
    , backup(practice->database(), practice->user().ID(),
             {.closeEverything = [this] { return closeEverything(); }, .leave = [this] { window.close(); }}) {
    const UserData& user = practice->user().data();
    window.showUser(user.fullName());
    window.showDatabase(practice->database().url().toDisplay());
    window.setCloseGuard([this] { return closeEverything(); });
    connectRooms();
    connect(&commands, &CommandList::pressed, this, [this](Command* command) { run(*command); });
    connect(&window.ribbon(), &RibbonBar::tabActivated, this, [this](const QString& caption) {
        if (module && module->asksForTabs()) module->raise(QStringLiteral("mainribbonbar.activetab"), {caption});
    });
    applySettings();
}

Desk::Parts::~Parts() {
    closePatient();
    // The module's windows give back what they hold, for which they need their module.
    window.children().deleteAll();
    endModule();
}

bool Desk::Parts::attach(std::unique_ptr<host::PluginInterface> newModule) {
    // Its tab and menus cannot be taken back, so a desk serves one module in its life.
    if (module) return refuseModule(QStringLiteral("un altro modulo \u00e8 gi\u00e0 attivo."));
    try {
        module = std::make_unique<ModuleSession>(std::move(newModule), host, [this](const QString& why) {
            moduleError = QStringLiteral("Modulo: ") + why;
            window.showWarning(moduleError);
        });
    } catch (const ModuleError& error) {
        return refuseModule(QString::fromUtf8(error.what()));
    }
    moduleError.clear();
    window.showWarning(QString());
    module->formLoad(window);
    panels = module->askPanels();
    applySettings(); // the tab may be the module's, and the pane was its to close
    if (const host::Paziente* patient = host.paziente()) {
        const QString id = patient->ID();
        closePatient();
        openPatient(id);
    }
    return true;
}

bool Desk::Parts::refuseModule(const QString& why) {
    moduleError = (module ? QStringLiteral("Il modulo non viene caricato: ")
                          : QStringLiteral("Il programma lavora senza modulo: ")) +
                  why;
    window.showWarning(moduleError);
    return false;
}

void Desk::Parts::endModule() {
    panels.clear();
    module.reset();
}

bool Desk::Parts::openPatient(const QString& id) {
    if (openDesk() && host.paziente()->ID() == id) {
        window.children().bringForward(patientDesk);
        return true;
    }
    bool opened = false;
    const QString why = platform::guarded([&] {
        const std::optional<PatientData> data = practice->patients().load(id);
        std::unique_ptr<PatientRecord> record = practice->newPatient();
        if (!data || !record->Init(id)) return;
        closePatient();
        host.setPatient(std::move(record));
        showPatient(*data);
        opened = true;
    });
    if (!why.isEmpty()) tell(why);
    return opened;
}

PatientDesk& Desk::Parts::deskForPanels() {
    const QList<Panel> arranged = framework.layout().arrange(panels);
    PatientDesk* desk = patientDesk;
    if (desk && desk->panels() == arranged) return *desk;
    window.children().discard(desk);
    desk = new PatientDesk(arranged, framework, roomServices());
    patientDesk = desk;
    connect(desk, &PatientDesk::closeRequested, this,
            [this] { QTimer::singleShot(0, this, [this] { closePatient(); }); });
    connect(desk, &PatientDesk::failed, this, &Parts::tell);
    window.children().adopt(desk);
    return *desk;
}

PatientDesk* Desk::Parts::openDesk() const {
    return host.hasPatient() ? patientDesk : nullptr;
}

void Desk::Parts::showPatient(const PatientData& data) {
    const host::Medico doctor = host.paziente()->medico();
    PatientDesk& desk = deskForPanels();
    desk.enter(data, QStringLiteral("%1 %2").arg(doctor.Cognome, doctor.Nome).trimmed());
    window.showPatient(data.Cognome + QLatin1Char(' ') + data.Nome);
    enablePatientCommands(commands, true);
    // The module forgets the patient before, only then the panels ask it for the records of this one.
    const int own = ++sitting;
    if (module) module->formLoad(desk);
    if (own != sitting) return;
    const QString why = platform::guarded([&] {
        std::unique_ptr<PatientRecord> record = practice->newPatient();
        if (record->Init(data.ID)) desk.fill(std::move(record));
    });
    if (!why.isEmpty()) tell(why);
    desk.show();
    window.children().bringForward(&desk);
    desk.focusPanel();
    if (module) module->raise(QStringLiteral("ambulatorio.ready"));
}

void Desk::Parts::closePatient() {
    if (!host.paziente()) return;
    if (module) module->raise(QStringLiteral("chiuditutto"));
    // Callers on the stack may still hold the patient that closes; it goes when they have returned.
    if (std::shared_ptr<host::Paziente> leaving = host.setPatient(nullptr))
        QTimer::singleShot(0, this, [leaving] { Q_UNUSED(leaving) });
    ++sitting;
    if (patientDesk) {
        window.children().putAway(patientDesk);
        patientDesk->leave();
    }
    window.showPatient(QString());
    enablePatientCommands(commands, false);
}

bool Desk::Parts::closeEverything() {
    if (!window.children().closeAll(patientDesk)) return false;
    keepPlace();
    closePatient();
    return true;
}

QString Desk::Parts::choosePatient(const QString& value, const QString& column) {
    PatientSearch search(practice->patients(), &window);
    search.start(value, column);
    search.exec();
    return search.chosenId();
}

bool Desk::Parts::isPanelLoaded(const QString& name) const {
    const PatientDesk* desk = openDesk();
    if (!desk) return false;
    const auto named = [&name](const Panel& panel) { return panel.name == name; };
    return std::any_of(desk->panels().cbegin(), desk->panels().cend(), named);
}

void Desk::Parts::refreshPanelsSoon() {
    // Later, since whoever tells the change may still be holding rows of a panel.
    if (std::exchange(refreshPending, true)) return;
    QTimer::singleShot(0, this, [this] {
        refreshPending = false;
        if (PatientDesk* desk = openDesk()) desk->refreshPanels();
    });
}

RoomServices Desk::Parts::roomServices() {
    return {.database = practice->database(),
            .userId = practice->user().ID(),
            .setDialogCancel = [this](bool cancel) { framework.setDialogCancel(cancel); },
            .showFile = [this](const QString& path) { showFile(path, &window); }};
}

void Desk::Parts::connectRooms() {
    const auto editorOf = [this](RoomKind kind) {
        return [this, kind](host::Paziente& patient, const QString& id) {
            // Every patient of this desk is one of its records.
            return makeRoomEditor(kind, dynamic_cast<PatientRecord&>(patient), roomServices(), id);
        };
    };
    PatientHooks& hooks = practice->hooks();
    hooks.raiseEvent = [this](host::Paziente&, host::Raccolta&) { refreshPanelsSoon(); };
    hooks.noteForm = editorOf(RoomKind::Notes);
    hooks.visitForm = editorOf(RoomKind::Visits);
    hooks.dueDateForm = editorOf(RoomKind::DueDates);
    hooks.showFile = roomServices().showFile;
}

void Desk::Parts::showRoom(RoomKind kind) {
    PatientDesk* desk = openDesk();
    if (!desk) return;
    window.children().bringForward(desk);
    desk->rooms().showRoom(kind);
}

void Desk::Parts::showFreeData() {
    if (window.children().bringForward(QStringLiteral("Archivio dati"))) return;
    reports.provideLayouts(); // which are data of the archive, too
    auto* archiveWindow = new FreeDataWindow(practice->freeData(), roomServices());
    window.children().adopt(archiveWindow);
    archiveWindow->show();
}

void Desk::Parts::run(const Command& command) {
    const DeskCommand* own = deskCommand(command.ID());
    const qint32 id = command.ID();
    const QString why = platform::guarded([&] {
        if (own && own->run)
            own->run(*this);
        else if (module)
            module->raise(QStringLiteral("execute"), {id});
    });
    if (!why.isEmpty()) tell(why);
}

void Desk::Parts::searchPatient() {
    const QString id = choosePatient(QString(), QStringLiteral("Cognome e Nome"));
    if (id.isEmpty()) return;
    if (!openPatient(id)) tell(QStringLiteral("Il paziente scelto non \u00e8 pi\u00f9 nell'archivio."));
}

void Desk::Parts::addPatient() {
    PatientData data;
    if (practice->user().data().isDoctor()) data.idMedico = practice->user().ID();
    const QString id = runEditor(data);
    if (!id.isEmpty()) openPatient(id);
}

void Desk::Parts::editPatient() {
    if (!host.paziente()) return;
    const std::optional<PatientData> data = practice->patients().load(host.paziente()->ID());
    const QString id = data ? runEditor(*data) : QString();
    if (id.isEmpty()) return;
    // Everybody who holds the old data reads them again, as for another patient.
    closePatient();
    openPatient(id);
}

QString Desk::Parts::runEditor(const PatientData& data) {
    PatientEditor editor(practice->patients(), practice->users().all(), &window);
    editor.fill(data);
    return editor.exec() == QDialog::Accepted ? editor.patient().ID : QString();
}

void Desk::Parts::showInformation() {
    const QString state = !moduleError.isEmpty() ? moduleError
                          : module               ? QStringLiteral("Il modulo di odontoiatria \u00e8 attivo.")
                                                 : QStringLiteral("Nessun modulo caricato.");
    platform::dialogs().message(
        QStringLiteral("Tessara 5000, scrivania dello studio\nVersione %1\n\nArchivio: %2\nRegistro: %3\n%4")
            .arg(QCoreApplication::applicationVersion(), practice->database().url().toDisplay(),
                 QDir::toNativeSeparators(log::fileName()), state),
        platform::MB_INFORMATION, QStringLiteral("Informazioni"));
}

void Desk::Parts::tell(const QString& why) {
    window.statusBar()->showMessage(why, STATUS_MILLISECONDS);
}

} // namespace desk
