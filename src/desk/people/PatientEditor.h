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

/// The personal data of a patient, "frmPaziente", new or known. Accepted only when the data could be saved. What cannot
/// be is refused in a message box, what is merely doubtful is asked about; either way the window keeps what was typed.
/// A card that another workstation changed meanwhile is brought together with what was typed, and not saved at once.
/// Borrows the directory.
class PatientEditor : public QDialog {
    Q_OBJECT

public:
    PatientEditor(PatientDirectory& patients, const QList<UserData>& users, QWidget* parent = nullptr);

    void fill(const PatientData& patient); ///< Without `ID` it is a new patient.
    const PatientData& patient() const { return patient_; }

    void reject() override; ///< Asks first when something was typed.

private:
    static constexpr std::size_t TEXTS = 15;

    void buildPerson(QGridLayout& grid);
    void buildAddresses(QGridLayout& grid);
    void buildContacts(QGridLayout& grid);
    void addText(QGridLayout& grid, int row, int column, std::size_t text, int span = 1);
    void setTabs(const QList<QWidget*>& last);
    void fillDoctors(const QString& idDoctor);
    void readTaxCode();
    PatientData fromFields() const;
    QString whatIsWrong(const PatientData& patient); ///< Empty when nothing is; the field at fault gets the focus.
    QString whatIsWrongWithTaxCode(const PatientData& patient);
    QString doubtAbout(const PatientData& patient); ///< A question; empty without doubts.
    QString refuse(QWidget* field, const QString& why);
    void show(const PatientData& patient);
    void save();
    QString store(PatientData& patient); ///< What kept it from being saved; empty when it was.
    QString takeInOthersChanges(const PatientData& patient);

    PatientDirectory& patients_;
    QList<UserData> users_;
    PatientData patient_;   ///< As it lies in the archive, when it was last looked at.
    PatientData untouched_; ///< The fields before anything was typed.
    std::array<QLineEdit*, TEXTS> texts_{};
    QLineEdit* birth_ = nullptr;
    QComboBox* sex_ = nullptr;
    QComboBox* doctor_ = nullptr;
    QPlainTextEdit* notes_ = nullptr;
};

} // namespace desk
