#pragma once

#include "desk/clinical/RoomEditor.h"
#include "host/contract/Paziente.h"

namespace desk {

class PatientRecord;

/// A file of the patient, "frmEditFile": a new one from the disk, or the description of one that is stored. Borrows
/// the patient.
class FileEditor : public RoomEditor {
    Q_OBJECT

public:
    FileEditor(PatientRecord& patient, host::VoceFile file, qint64 size, const RoomServices& services, QWidget* parent);
    FileEditor(PatientRecord& patient, const QString& path, const RoomServices& services, QWidget* parent);

    /// The file dialog; empty on cancel.
    static QString choosePath();

protected:
    QString whatIsWrong() override;
    QStringList storedNow() override;
    bool store(QString& id) override;

private:
    void addPath(const QString& path);
    QString whatIsWrongWith(const QString& path) const;

    PatientRecord& patient_;
    host::VoceFile file_;
    QLineEdit* path_ = nullptr; ///< For a new file only.
    QPlainTextEdit* text_ = nullptr;
};

} // namespace desk
