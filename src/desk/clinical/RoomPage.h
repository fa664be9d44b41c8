#pragma once

#include "desk/clinical/Room.h"

#include <QPushButton>
#include <QWidget>
#include <memory>

class QKeyEvent;
class QLabel;

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

namespace desk {

class Database;

/// The list of a room with its buttons, its context menu and its keys: Ins adds, Enter opens, Del deletes. A list that
/// cannot be read says why and keeps the rows it had. Owns the room, which can be exchanged for one of the same kind:
/// what was begun in the former one is dropped. Borrows the database.
class RoomPage : public QWidget {
    Q_OBJECT

public:
    RoomPage(std::unique_ptr<Room> room, Database& database, QWidget* parent = nullptr);
    ~RoomPage() override;

    void refresh() { refresh(QString()); }
    void refresh(const QString& idToSelect); ///< Keeps the focused row when the id is empty.
    platform::ReportGrid& grid() { return *grid_; }
    Room& room() { return *room_; }

    /// Leaves the list empty and without a room, and closes its editors. The room must outlive the running handlers.
    std::unique_ptr<Room> takeRoom();
    void setRoom(std::unique_ptr<Room> room);

signals:
    void changed(); ///< A row was stored or deleted here.

private:
    void buildGrid();
    QPushButton* addButton(const QString& name, const QString& caption, QLayout& row);
    void fill(const QList<RoomRow>& rows, const QString& idToSelect);
    void edit(const QString& id);
    void removeFocused();
    void open(); ///< What a double click does.
    void run(const RoomAction& action);
    void showMenu(platform::ReportRecord* record);
    void keyPressed(QKeyEvent* event);
    QString focusedId() const;
    void followFocus();
    void attempt(const std::function<void()>& step); ///< Tells what the step fails at.

    std::unique_ptr<Room> room_;
    std::unique_ptr<QObject> sitting_; ///< Goes with the room: what waits for a person looks here whether to go on.
    const RoomTexts texts_;
    Database& database_;
    platform::ReportGrid* grid_;
    QLabel* trouble_;
    QList<RoomAction> actions_;
    QList<QPushButton*> onRow_; ///< Buttons that need a focused row.
};

} // namespace desk
