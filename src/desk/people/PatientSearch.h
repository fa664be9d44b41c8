#pragma once

#include <QDialog>
#include <QString>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace platform {
class ReportGrid;
}

namespace desk {

class PatientDirectory;

/// The patient search, "frmCercaPaziente": the list follows the text while it is typed; Enter or a double click
/// chooses, Escape cancels. Borrows the directory.
class PatientSearch : public QDialog {
    Q_OBJECT

public:
    PatientSearch(PatientDirectory& patients, QWidget* parent = nullptr);

    /// Starts with this text in a column named "Cognome e Nome" or "Codice Fiscale".
    void start(const QString& value, const QString& column);
    QString chosenId() const { return chosen_; } ///< Empty after a cancel.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildGrid();
    void search();
    void choose();
    void moveFocus(int step);

    PatientDirectory& patients_;
    QLineEdit* text_;
    QComboBox* column_;
    platform::ReportGrid* grid_;
    QLabel* count_;
    QPushButton* open_;
    QString chosen_;
};

} // namespace desk
