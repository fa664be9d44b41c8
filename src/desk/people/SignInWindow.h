#pragma once

#include "desk/data/UserData.h"
#include "desk/people/SignIn.h"

#include <QDialog>
#include <QList>
#include <stdexcept>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTimer;

namespace desk {

/// Nobody signed in: the window was closed instead. No fault; the program ends.
class SignInCancelled : public std::runtime_error {
public:
    SignInCancelled()
        : std::runtime_error("Accesso annullato.") {}
};

/// The sign-in, "frmAccesso": a click on a user without a password signs in at once, the others type theirs. After too
/// many wrong ones it counts the seconds down until the next try. Borrows the checker.
class SignInWindow : public QDialog {
    Q_OBJECT

public:
    SignInWindow(SignIn& signIn, const QList<UserData>& users, QWidget* parent = nullptr);

    const UserData& user() const { return users_[chosen_]; } ///< Who signed in, once accepted.

private:
    void build();
    void select(int row);
    void enterByClick();
    void enter();
    void showState();
    void complain(const QString& text);

    SignIn& signIn_;
    QList<UserData> users_;
    int chosen_ = 0;
    QString complaint_;
    QListWidget* list_;
    QLabel* caption_;
    QLineEdit* password_;
    QLabel* state_;
    QPushButton* confirm_;
    QTimer* second_;
};

} // namespace desk
