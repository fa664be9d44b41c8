#pragma once

#include "desk/data/UserData.h"
#include "desk/people/SignIn.h"

#include <QDialog>
#include <optional>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace desk {

class UserDirectory;

/// One user of the practice, "frmUtente", new or known, with the password. To change a password one has to know it; a
/// doctor with a password of their own may with that one reset the forgotten one of another. Only doctors say who is a
/// doctor. Accepted only when the user could be saved; what is wrong is told in a message box and leaves the window
/// open. Borrows directory and checker.
class UserEditor : public QDialog {
    Q_OBJECT

public:
    /// The user of this run, as stored now, stays active.
    UserEditor(UserDirectory& users, SignIn& signIn, UserData signedIn, QWidget* parent = nullptr);

    void fill(const UserData& user); ///< Without `ID` it is a new user.
    const UserData& user() const { return user_; }

private:
    QGroupBox* buildPerson();
    QGroupBox* buildPassword();
    UserData fromFields() const;
    QString whatIsWrong(const UserData& user);
    QString whatIsWrongWithPassword();
    QString judgePassword();
    void askForPassword();
    bool changesPassword() const;
    bool isSignedIn() const { return user_.ID == signedIn_.ID; }
    const UserData& whosePassword() const; ///< The user whose present password allows a change.
    QString refuse(QWidget* field, const QString& why);
    void save();

    UserDirectory& users_;
    SignIn& signIn_;
    UserData signedIn_;
    UserData user_;
    QLineEdit* code_ = nullptr;
    QLineEdit* surname_ = nullptr;
    QLineEdit* name_ = nullptr;
    QLineEdit* taxCode_ = nullptr;
    QComboBox* kind_ = nullptr;
    QComboBox* activity_ = nullptr;
    QCheckBox* active_ = nullptr;
    QGroupBox* secret_ = nullptr;
    QLabel* oldCaption_ = nullptr;
    QLineEdit* oldPassword_ = nullptr;
    QLineEdit* newPassword_ = nullptr;
    QLineEdit* repeated_ = nullptr;
    QCheckBox* noPassword_ = nullptr;
};

} // namespace desk
