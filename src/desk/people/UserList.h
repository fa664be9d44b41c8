#pragma once

#include "desk/people/SignIn.h"

#include <QDialog>
#include <QString>

namespace platform {
class ListPage;
class RecordForm;
struct ListRows;
} // namespace platform

namespace desk {

class UserDirectory;
struct UserData;

/// Those who work in the practice, "frmUtenti": add, change, delete. Who has records is made inactive instead, and the
/// user of this run stays. Borrows directory and checker.
class UserList : public QDialog {
    Q_OBJECT

public:
    UserList(UserDirectory& users, SignIn& signIn, QString signedInId, QWidget* parent = nullptr);

private:
    platform::ListRows rows();
    platform::RecordForm* editor(const QString& id, QWidget* parent);
    bool removeOrDeactivate(const QString& id, platform::ListPage& page);
    UserData known(const QString& id); ///< Throws when there is no such user any more.

    UserDirectory& users_;
    SignIn& signIn_;
    QString signedInId_;
};

} // namespace desk
