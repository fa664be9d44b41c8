#pragma once

#include "desk/clinical/RoomEditor.h"
#include "host/contract/Paziente.h"

namespace desk {

class PatientRecord;

/// An entry of the diary, "frmEditEvento". Borrows the patient.
class EventEditor : public RoomEditor {
    Q_OBJECT

public:
    EventEditor(PatientRecord& patient, host::Evento event, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    PatientRecord& patient_;
    host::Evento event_;
    QDateEdit* date_;
    QPlainTextEdit* text_;
};

} // namespace desk
