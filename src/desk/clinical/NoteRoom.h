#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"
#include "host/contract/Paziente.h"

namespace desk {

class PatientRecord;

/// The notes of a patient. Private ones are for the patient's own doctor alone: nobody else sees, changes or deletes
/// them here. Borrows the patient.
class NoteRoom : public Room {
public:
    NoteRoom(PatientRecord& patient, RoomServices services)
        : patient_(patient)
        , services_(std::move(services)) {}

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;

private:
    bool maySee(const host::Appunto& note) const;
    PatientRecord& patient_;
    RoomServices services_;
};

} // namespace desk
