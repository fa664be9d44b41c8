#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <functional>

namespace desk {

class Database;
class MainWindow;

/// Tells the user when the database fails, so that a list that could not be read is not taken for an empty one: in the
/// status bar at each failure, in a message once for each trouble. While a server is gone the status bar keeps saying
/// so. Borrows both; ends before the database.
class DatabaseWatch : public QObject {
    Q_OBJECT

public:
    /// `recovered` is called when the database answers again.
    DatabaseWatch(Database& database, MainWindow& window, std::function<void()> recovered);
    ~DatabaseWatch() override;

private:
    void failed(const QString& text, bool connectionLost);
    void takeUp();
    void showMessage(const QString& text, bool connectionLost);

    Database& database_;
    MainWindow& window_;
    std::function<void()> recovered_;
    bool gone_ = false; ///< The connection was lost and the user knows.
    QString lastTold_;
    QElapsedTimer sinceTold_;
};

} // namespace desk
