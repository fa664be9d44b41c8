#pragma once

#include "desk/data/PatientData.h"
#include "desk/data/UserData.h"
#include "platform/RecordForm.h"

namespace desk {

class PatientDirectory;

/// The personal data of a patient, "frmPaziente", new or known. Accepted only when the data could be saved. What cannot
/// be is refused in a message box, what is merely doubtful is asked about; either way the window keeps what was typed.
/// A card that another workstation changed meanwhile is brought together with what was typed, and not saved at once.
/// Borrows the directory.
class PatientEditor : public platform::RecordForm {
    Q_OBJECT

public:
    PatientEditor(PatientDirectory& patients, const QList<UserData>& users, QWidget* parent = nullptr);

    void fill(const PatientData& patient); ///< Without `ID` it is a new patient.
    const PatientData& patient() const { return patient_; }

protected:
    QString whatIsWrong() override;
    QString doubt() override;
    QString store(QString& id) override;

private:
    void fillDoctors(const QString& idDoctor);
    void readTaxCode();
    PatientData fromFields() const;
    QString whatIsWrongWithTaxCode(const PatientData& patient);
    QString takeInOthersChanges(const PatientData& patient);

    PatientDirectory& patients_;
    QList<UserData> users_;
    PatientData patient_; ///< As it lies in the archive, when it was last looked at.
};

} // namespace desk
