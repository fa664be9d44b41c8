#pragma once

#include "desk/clinical/RoomEditor.h"
#include "host/contract/Paziente.h"

namespace desk {

class PatientRecord;

/// A note, "frmEditAppunto". Only the patient's own doctor can make it private. Borrows the patient.
class NoteEditor : public RoomEditor {
    Q_OBJECT

public:
    NoteEditor(PatientRecord& patient, host::Appunto note, const RoomServices& services, QWidget* parent);

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    QDateTime moment() const;

    PatientRecord& patient_;
    host::Appunto note_;
    QDateEdit* date_;
    QPlainTextEdit* text_;
    QCheckBox* important_;
    QCheckBox* private_;
};

} // namespace desk
