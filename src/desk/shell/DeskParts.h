#pragma once

#include "desk/clinical/RoomServices.h"
#include "desk/people/DeskSettings.h"
#include "desk/report/ReportViewer.h"
#include "desk/shell/BackupCommands.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/DatabaseWatch.h"
#include "desk/shell/Desk.h"
#include "desk/shell/DeskArchive.h"
#include "desk/shell/DeskFramework.h"
#include "desk/shell/DeskHost.h"
#include "desk/shell/MainWindow.h"
#include "desk/shell/ModuleSession.h"
#include "desk/shell/Practice.h"

#include <QObject>
#include <QPointer>

namespace desk {

class PatientDesk;
enum class RoomKind;

/// The inside of Desk: what belongs to it, in the order in which it is made, and how patient, module and commands play
/// together.
struct Desk::Parts : public QObject {
    explicit Parts(std::unique_ptr<Practice> openPractice);
    ~Parts() override;

    bool attach(std::unique_ptr<host::PluginInterface> newModule);
    bool refuseModule(const QString& why);
    void endModule();

    bool openPatient(const QString& id);
    void showPatient(const PatientData& data);
    PatientDesk& deskForPanels();  ///< Built anew only when the panels are others.
    PatientDesk* openDesk() const; ///< Null while no patient is open.
    void closePatient();
    bool closeEverything();
    QString choosePatient(const QString& value, const QString& column);
    bool isPanelLoaded(const QString& name) const;
    void refreshPanelsSoon();

    RoomServices roomServices();
    void connectRooms(); ///< What the data of a patient asks of the windows.
    void showRoom(RoomKind kind);
    void showFreeData();

    void run(const Command& command);
    void searchPatient();
    void addPatient();
    void editPatient();
    QString runEditor(const PatientData& data); ///< Id of the saved patient; empty after a cancel.
    void showUsers();
    void changeSettings();
    DeskSettings settingsWithFont();
    void applySettings();
    void restorePlace(); ///< Of the main window, which from now on is kept.
    void keepPlace();
    void showInformation();
    void tell(const QString& why);

    std::unique_ptr<Practice> practice;
    DeskSettings settings;
    CommandList commands;
    MainWindow window;
    ReportViewer reports;
    DeskFramework framework;
    DeskArchive archive;
    DeskHost host;
    std::unique_ptr<ModuleSession> module;
    DatabaseWatch watch;
    BackupCommands backup;
    QList<Panel> panels;
    QPointer<PatientDesk> patientDesk; ///< Put away while no patient is open.
    int sitting = 0;                   ///< Changes with each patient who opens or closes.
    QString moduleError;
    bool refreshPending = false;
    bool placeIsKept = false;
};

} // namespace desk
