#pragma once

#include "desk/clinical/Room.h"
#include "desk/clinical/RoomServices.h"

namespace desk {

class PatientRecord;

/// The files of a patient: added from the disk, shown, extracted into the folder of the run. Borrows the patient.
class FileRoom : public Room {
public:
    FileRoom(PatientRecord& patient, RoomServices services)
        : patient_(patient)
        , services_(std::move(services)) {}

    RoomTexts texts() const override;
    QList<platform::ReportColumn> columns() const override;
    QList<RoomRow> rows() override;
    RoomEditor* editor(const QString& id, QWidget* parent) override;
    QString removalQuestion(const QString& id) override;
    bool remove(const QString& id) override;
    QList<RoomAction> actions() override;

    void show(const QString& id); ///< Throws HostError.

private:
    void extract(const QString& id);
    QString extracted(const QString& id); ///< Path of a copy; throws HostError.
    PatientRecord& patient_;
    RoomServices services_;
};

} // namespace desk
