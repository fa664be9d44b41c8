#pragma once

#include "desk/clinical/ClinicalKinds.h"

#include <QList>
#include <QTabWidget>

namespace desk {

/// The editor of one row, new with an empty id; owned by the caller, who executes it. Borrows the patient. Throws
/// HostError when the row is gone or not for this user.
QObject* makeRoomEditor(RoomKind kind, PatientRecord& patient, const RoomServices& services, const QString& id);

/// The rooms of a patient, a tab each, whose list is built and read when it is first in front. They serve patient after
/// patient. Owns its own binding of the patient, so that it does not matter who lets go of the patient first.
class ClinicalRooms : public QTabWidget {
    Q_OBJECT

public:
    explicit ClinicalRooms(const RoomServices& services, QWidget* parent = nullptr);

    void enter(std::unique_ptr<PatientRecord> patient);
    void leave(); ///< No list keeps a row of the patient, and no editor stays open.

    void refresh();
    void showRoom(RoomKind kind); ///< Brings it forward with the keyboard in its list.
    platform::ListPage& page(RoomKind kind);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showFront();

    RoomContext context_;              ///< Without a patient while none is open.
    QList<platform::ListPage*> pages_; ///< In the order of the tabs; null for one not yet seen.
};

} // namespace desk
