#pragma once

#include "desk/clinical/RoomEditor.h"
#include "desk/data/PatientDueDates.h"

namespace desk {

class PatientRecord;

/// A due date, "frmEditScadenza". Borrows the patient.
class DueDateEditor : public RoomEditor {
    Q_OBJECT

public:
    DueDateEditor(PatientRecord& patient, Scadenza dueDate, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    PatientRecord& patient_;
    Scadenza dueDate_;
    QDateEdit* date_;
    QPlainTextEdit* text_;
    QCheckBox* done_;
};

} // namespace desk
