#pragma once

#include "desk/data/PatientData.h"
#include "desk/shell/Panel.h"
#include "host/contract/Forms.h"

#include <QList>
#include <QWidget>

class QSplitter;
class QTabWidget;
class QVBoxLayout;

namespace host {
class Framework;
}

namespace desk {

class ClinicalRooms;
class PanelPage;

/// The desk of the open patient, "frmAmbulatorio": who it is, and the panels of the module below. Made anew for each
/// patient. Closing its tab only asks for the patient to be closed.
class PatientDesk : public QWidget, public host::HostForm {
    Q_OBJECT

public:
    PatientDesk(const PatientData& patient, const QString& doctor, QWidget* parent = nullptr);

    QString Name() const override { return objectName(); }

    void addPanels(const QList<Panel>& panels, host::Framework& framework);
    /// The rooms of the patient, below the panels or, without any, in their place.
    void addRooms(ClinicalRooms* rooms);
    ClinicalRooms* rooms() const { return rooms_; }
    bool hasPanel(const QString& name) const;
    void refreshPanels();             ///< And the rooms.
    QStringList activePanels() const; ///< Captions, one a side.
    void activatePanel(const QString& caption);

signals:
    void closeRequested();
    void failed(const QString& why);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addSide(const QList<Panel>& panels, host::Framework& framework, QSplitter& splitter);
    QWidget* buildHeader(const PatientData& patient, const QString& doctor);

    QVBoxLayout* column_;
    QSplitter* stack_; ///< Panels above, rooms below.
    ClinicalRooms* rooms_ = nullptr;
    QList<QTabWidget*> sides_;
    QList<PanelPage*> pages_;
};

} // namespace desk
