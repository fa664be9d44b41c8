#pragma once

#include "desk/clinical/PatientRoom.h"
#include "host/contract/Paziente.h"

namespace desk {

/// The notes of a patient. Private ones are for the patient's own doctor alone: nobody else sees, changes or deletes
/// them here.
class NoteRoom : public PatientRoom {
public:
    using PatientRoom::PatientRoom;

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;

private:
    bool maySee(const host::Appunto& note) const;
};

} // namespace desk
