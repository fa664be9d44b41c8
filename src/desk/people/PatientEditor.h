#pragma once

#include "desk/data/PatientData.h"
#include "desk/data/UserData.h"

#include <QDialog>
#include <QList>
#include <array>

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPlainTextEdit;

namespace desk {

class PatientDirectory;

/// The personal data of a patient, "frmPaziente", new or known. Accepted only when the data could be saved; what is
/// wrong with them is told in a message box. Borrows the directory.
class PatientEditor : public QDialog {
    Q_OBJECT

public:
    PatientEditor(PatientDirectory& patients, const QList<UserData>& doctors, QWidget* parent = nullptr);

    void fill(const PatientData& patient); ///< Without `ID` it is a new patient.
    const PatientData& patient() const { return patient_; }

private:
    static constexpr std::size_t TEXTS = 10;

    void addText(QGridLayout& grid, int row, int column, std::size_t text, int span = 1);
    PatientData fromFields() const;
    QString whatIsWrong(const PatientData& patient); ///< Empty when nothing is; the field at fault gets the focus.
    void save();

    PatientDirectory& patients_;
    PatientData patient_;
    std::array<QLineEdit*, TEXTS> texts_{};
    QLineEdit* birth_ = nullptr;
    QComboBox* sex_ = nullptr;
    QComboBox* doctor_ = nullptr;
    QPlainTextEdit* notes_ = nullptr;
};

} // namespace desk
