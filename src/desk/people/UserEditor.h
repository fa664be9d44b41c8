#pragma once

#include "desk/data/UserData.h"
#include "desk/people/SignIn.h"
#include "platform/RecordForm.h"

namespace desk {

class UserDirectory;

/// One user of the practice, "frmUtente", new or known, with the password. To change a password one has to know it; a
/// doctor with a password of their own may with that one reset the forgotten one of another. Only doctors say who is a
/// doctor. Borrows directory and checker.
class UserEditor : public platform::RecordForm {
    Q_OBJECT

public:
    /// The user of this run, as stored now, stays active. Without `ID` the other is a new user.
    UserEditor(UserDirectory& users, SignIn& signIn, UserData signedIn, const UserData& user,
               QWidget* parent = nullptr);

protected:
    QString whatIsWrong() override;
    QString store(QString& id) override;

private:
    QString text(const char* name) const { return value(name).toString(); }
    QString whatIsWrongWithPassword();
    QString judgePassword();
    void askForPassword();
    bool changesPassword() const;
    bool isSignedIn() const { return user_.ID == signedIn_.ID; }
    const UserData& whosePassword() const; ///< The user whose present password allows a change.

    UserDirectory& users_;
    SignIn& signIn_;
    UserData signedIn_;
    UserData user_;
};

} // namespace desk
