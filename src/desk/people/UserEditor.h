#pragma once

#include "desk/data/UserData.h"
#include "desk/people/SignIn.h"

#include <QDialog>
#include <optional>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;

namespace desk {

class UserDirectory;

/// One user of the practice, "frmUtente", new or known, with the password. Accepted only when the user could be saved;
/// what is wrong is told in a message box and leaves the window open. Borrows directory and checker.
class UserEditor : public QDialog {
    Q_OBJECT

public:
    /// `signedInId` is the user of this run, who stays active.
    UserEditor(UserDirectory& users, SignIn& signIn, QString signedInId, QWidget* parent = nullptr);

    void fill(const UserData& user); ///< Without `ID` it is a new user.
    const UserData& user() const { return user_; }

private:
    QGroupBox* buildPerson();
    QGroupBox* buildPassword();
    UserData fromFields() const;
    QString whatIsWrong(const UserData& user);
    QString whatIsWrongWithPassword();
    QString judgeOldPassword();
    bool changesPassword() const;
    QString refuse(QWidget* field, const QString& why);
    void save();

    UserDirectory& users_;
    SignIn& signIn_;
    QString signedInId_;
    UserData user_;
    QLineEdit* code_ = nullptr;
    QLineEdit* surname_ = nullptr;
    QLineEdit* name_ = nullptr;
    QLineEdit* taxCode_ = nullptr;
    QComboBox* kind_ = nullptr;
    QComboBox* activity_ = nullptr;
    QCheckBox* active_ = nullptr;
    QGroupBox* secret_ = nullptr;
    QLineEdit* oldPassword_ = nullptr;
    QLineEdit* newPassword_ = nullptr;
    QLineEdit* repeated_ = nullptr;
    QCheckBox* noPassword_ = nullptr;
};

} // namespace desk
