#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"

namespace desk {

class PatientRecord;

/// The diary of a patient. An entry may hold a file, which a button shows. Borrows the patient.
class EventRoom : public Room {
public:
    EventRoom(PatientRecord& patient, RoomServices services)
        : patient_(patient)
        , services_(std::move(services)) {}

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;
    QList<RoomAction> actions() override;

private:
    PatientRecord& patient_;
    RoomServices services_;
};

} // namespace desk
