#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"

namespace desk {

class PatientRecord;

/// The due dates of a patient: those that have passed and are not done stand out. Borrows the patient.
class DueDateRoom : public Room {
public:
    DueDateRoom(PatientRecord& patient, RoomServices services)
        : patient_(patient)
        , services_(std::move(services)) {}

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;

private:
    PatientRecord& patient_;
    RoomServices services_;
};

} // namespace desk
