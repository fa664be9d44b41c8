#pragma once

#include "desk/clinical/RoomServices.h"

#include <QList>
#include <QTabWidget>
#include <memory>

class QObject;

namespace desk {

class PatientRecord;
class Room;
class RoomPage;

enum class RoomKind { Events, Notes, Visits, DueDates, Files };

/// A room of a patient, who is borrowed.
std::unique_ptr<Room> makeRoom(RoomKind kind, PatientRecord& patient, const RoomServices& services);

/// The editor of one row, new with an empty id; owned by the caller, who executes it. Borrows the patient. Null after a
/// cancel; throws HostError when the row is gone or not for this user.
QObject* makeRoomEditor(RoomKind kind, PatientRecord& patient, const RoomServices& services, const QString& id);

/// The rooms of one patient, a tab each. Owns its own binding of the patient, so that it does not matter who lets go of
/// the patient first.
class ClinicalRooms : public QTabWidget {
    Q_OBJECT

public:
    ClinicalRooms(std::unique_ptr<PatientRecord> patient, const RoomServices& services, QWidget* parent = nullptr);
    ~ClinicalRooms() override;

    void refresh();
    void showRoom(RoomKind kind); ///< Brings it forward with the keyboard in its list.
    RoomPage& page(RoomKind kind) { return *pages_.at(static_cast<int>(kind)); }

private:
    std::unique_ptr<PatientRecord> patient_;
    QList<RoomPage*> pages_;
};

} // namespace desk
