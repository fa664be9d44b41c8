#pragma once

#include "desk/people/SignIn.h"

#include <QDialog>
#include <QString>

class QKeyEvent;
class QPushButton;

namespace platform {
class ReportGrid;
}

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
    void buildGrid();
    void load(const QString& idToSelect);
    void add();
    void edit();
    void remove();
    QString removeOrDeactivate(UserData user);
    void runEditor(const UserData& user);
    std::optional<UserData> known(const QString& id);
    std::optional<UserData> focused();
    void handleKey(QKeyEvent* event);
    void tell(const QString& text);
    bool ask(const QString& question);

    UserDirectory& users_;
    SignIn& signIn_;
    QString signedInId_;
    platform::ReportGrid* grid_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* remove_ = nullptr;
};

} // namespace desk
