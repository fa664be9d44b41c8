#pragma once

#include "desk/shell/Panel.h"
#include "host/contract/Forms.h"

#include <QList>
#include <QWidget>
#include <memory>

class QSplitter;

namespace host {
class Framework;
}

namespace desk {

class ClinicalRooms;
class PanelPage;
class PatientHeader;
class PatientRecord;
struct PatientData;
struct RoomServices;

/// The desk of the open patient, "frmAmbulatorio": who it is, the panels of the module, and the patient's rooms below.
/// One desk serves patient after patient, since its lists are slow to build: `leave` empties it of all that the former
/// one had. Borrows the views of the panels. Closing its tab only asks for the patient to be closed.
class PatientDesk : public QWidget, public host::HostForm {
    Q_OBJECT

public:
    PatientDesk(const QList<Panel>& panels, host::Framework& framework, const RoomServices& services);

    QString Name() const override { return objectName(); }

    void enter(const PatientData& patient, const QString& doctor);
    void fill(std::unique_ptr<PatientRecord> patient); ///< Panels and rooms, with the records of who entered.
    void leave();
    void focusPanel(); ///< Where the keyboard begins: the first list that is shown.

    const QList<Panel>& panels() const { return panels_; }
    ClinicalRooms& rooms() { return *rooms_; }
    void refreshPanels(); ///< And the rooms.

signals:
    void closeRequested();
    void failed(const QString& why);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void fillPanels();
    void addSide(const QList<Panel>& panels, host::Framework& framework, QSplitter& splitter);

    QList<Panel> panels_;
    PatientHeader* header_;
    ClinicalRooms* rooms_;
    QList<PanelPage*> pages_;
};

} // namespace desk
