#pragma once

#include <QDialog>
#include <QString>

namespace platform {
class ListPage;
struct ListQuery;
struct ListRows;
} // namespace platform

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

private:
    platform::ListRows search(const platform::ListQuery& query);

    PatientDirectory& patients_;
    platform::ListPage* page_;
    QString chosen_;
};

} // namespace desk
