#pragma once

#include "platform/ReportColumn.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace desk {

class RoomEditor;

/// A row of a room's list.
struct RoomRow {
    QString id;
    QStringList cells;
    QColor colour = QColor(); ///< Of the text; the usual one when invalid.
    bool bold = false;
};

/// What can be done with the focused row beyond changing and deleting it.
struct RoomAction {
    QString name;    ///< Of its button.
    QString caption; ///< With its access key.
    std::function<void(const QString& id)> run;
    bool onDoubleClick = false; ///< In place of the editor.
};

struct RoomTexts {
    QString item;       ///< Names the controls: "Appunto" gives cbNuovoAppunto.
    QString grid;       ///< Name of the list.
    QString caption;    ///< "Appunti"
    QString newCaption; ///< "&Nuovo appunto"
    QString empty;      ///< What the list says without rows.
};

/// One kind of thing that is kept as a list, each with an editor: the diary, the notes, the files. A room says what
/// there is and how it changes; RoomPage shows it. Reading and opening an editor may throw.
class Room {
public:
    virtual ~Room() = default;
    virtual RoomTexts texts() const = 0;
    virtual QList<platform::ReportColumn> columns() const = 0;
    virtual QList<RoomRow> rows() = 0;
    /// The editor of a row, new with an empty id; owned by the caller. Null when the user thought better of it. Throws
    /// HostError when the row is gone or not for this user.
    virtual RoomEditor* editor(const QString& id, QWidget* parent) = 0;
    virtual QString removalQuestion(const QString& id) = 0; ///< Empty when the row is gone.
    virtual bool remove(const QString& id) = 0;             ///< Tells everybody of the change, too.
    virtual QList<RoomAction> actions() { return {}; }
};

} // namespace desk
