#pragma once

#include "platform/ReportColumn.h"

#include <QColor>
#include <QList>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

class QBoxLayout;
class QComboBox;
class QDialog;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;

namespace platform {

class ListPage;
class RecordForm;
class ReportGrid;
class ReportRecord;

/// A row of a list.
struct ListRow {
    QString id;
    QStringList cells;
    QColor colour = QColor(); ///< Of the text; the usual one when invalid.
    bool bold = false;
};

struct ListRows {
    QList<ListRow> rows;
    QString summary = QString(); ///< Said beside the list.
};

/// What stands in the search line.
struct ListQuery {
    QString text;
    int column = 0; ///< In `ListSource::searchColumns`.
};

/// What a person can do with a list: by button, in the context menu, by key.
struct ListCommand {
    QString name;    ///< Of its button.
    QString caption; ///< With its access key.
    /// Gets the id of the focused row, or an empty one. Answers which row to focus in the list that is then read again,
    /// an empty id for the one that had the focus, and nothing when nothing was changed. May throw what is to be told.
    std::function<std::optional<QString>(const QString& id, ListPage& page)> run;
    QList<int> keys = {};
    bool onRow = true; ///< Needs a focused row.
    bool main = false; ///< Also by Enter and by a double click.
    bool inMenu = true;
};

/// Where a list comes from and what can be done with it.
struct ListSource {
    QString name;   ///< Of the page.
    QString grid;   ///< Of the list.
    QString status; ///< Of the label that says why the list cannot be read, and the summary.
    QString caption;
    QString empty; ///< What the list says without rows.
    QList<ReportColumn> columns;
    std::function<ListRows(const ListQuery& query)> rows; ///< May throw.
    QList<ListCommand> commands = {};
    QStringList searchColumns = {}; ///< None for a list that is not searched.
};

/// The usual three: "Nuovo" (Ins), "Modifica" (Enter, a double click), "Elimina" (Del), with buttons named after the
/// item. `form` makes the editor of an id, new with an empty one, or null when the user thought better of it; `remove`
/// asks, and answers whether the row is gone. Both may throw.
QList<ListCommand> editCommands(const QString& item, const QString& newCaption,
                                std::function<RecordForm*(const QString& id, QWidget* parent)> form,
                                std::function<bool(const QString& id, ListPage& page)> remove);

/// Closes the window of the list.
ListCommand closeCommand(const QString& name, const QString& caption, QDialog& window);

/// A list with its buttons, its context menu, its keys and, where it is asked for, a search line that is followed while
/// it is typed. A list that cannot be read says why and keeps the rows it had; after a change it keeps its row. The
/// source can be exchanged for another of the same shape: what was begun with the former one is dropped.
class ListPage : public QWidget {
    Q_OBJECT

public:
    enum class Buttons { Above, Below };

    ListPage(ListSource source, Buttons buttons, QWidget* parent = nullptr);
    ~ListPage() override;

    void refresh() { refresh(QString()); }
    void refresh(const QString& idToFocus); ///< Keeps the focused row when the id is empty.
    void search(const ListQuery& query);    ///< As if it were typed.
    ReportGrid& grid() { return *grid_; }
    QString focusedId() const;

    /// Leaves the list empty and closes the forms above it. Running commands finish on their own copy of the source.
    void leave();
    void enter(ListSource source);

    /// Asks whether to do something that cannot be taken back. False as well when the source has gone meanwhile.
    bool agreed(const QString& question);

signals:
    void changed(); ///< A row was stored or deleted here.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildSearch(QBoxLayout& column);
    void buildButtons(QBoxLayout& column, Buttons place);
    void buildGrid();
    void read(const QString& idToFocus, int otherwise);
    void fill(const QList<ListRow>& rows, const QString& idToFocus, int otherwise);
    void say(const QString& text, bool trouble);
    void run(qsizetype command);
    bool runMain();
    void showMenu(ReportRecord* record);
    void keyPressed(QKeyEvent* event);
    void runByKey(QKeyEvent* event);
    void followFocus();

    ListSource source_;
    std::unique_ptr<QObject> sitting_; ///< Goes with the source: what waits for a person looks here whether to go on.
    ReportGrid* grid_ = nullptr;
    QLabel* status_ = nullptr;
    QLineEdit* text_ = nullptr;
    QComboBox* column_ = nullptr;
    QList<QPushButton*> buttons_; ///< Of the commands, in their order.
};

} // namespace platform
