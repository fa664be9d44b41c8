#pragma once

#include "desk/clinical/RoomEditor.h"
#include "host/contract/Paziente.h"

class QTimeEdit;

namespace desk {

class PatientRecord;

/// A visit, "frmEditVisita", with its hour. Borrows the patient.
class VisitEditor : public RoomEditor {
    Q_OBJECT

public:
    VisitEditor(PatientRecord& patient, host::Visita visit, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    PatientRecord& patient_;
    host::Visita visit_;
    QDateEdit* date_;
    QTimeEdit* time_;
    QPlainTextEdit* text_;
};

} // namespace desk
