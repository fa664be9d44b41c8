#include "desk/clinical/RoomPage.h"

#include "desk/clinical/RoomEditor.h"
#include "desk/data/Database.h"
#include "desk/data/Guarded.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace desk {

using platform::ReportGrid;

RoomPage::RoomPage(std::unique_ptr<Room> room, Database& database, QWidget* parent)
    : QWidget(parent)
    , room_(std::move(room))
    , sitting_(std::make_unique<QObject>())
    , texts_(room_->texts())
    , database_(database)
    , actions_(room_->actions()) {
    setObjectName(QStringLiteral("pagina") + texts_.item);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(6);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    QPushButton* add = addButton(QStringLiteral("cbNuovo"), texts_.newCaption, *buttons);
    connect(add, &QPushButton::clicked, this, [this] { edit(QString()); });
    QPushButton* change = addButton(QStringLiteral("cbModifica"), QStringLiteral("&Modifica"), *buttons);
    connect(change, &QPushButton::clicked, this, [this] { edit(focusedId()); });
    QPushButton* remove = addButton(QStringLiteral("cbElimina"), QStringLiteral("&Elimina"), *buttons);
    connect(remove, &QPushButton::clicked, this, &RoomPage::removeFocused);
    onRow_ = {change, remove};
    for (qsizetype i = 0; i < actions_.size(); ++i) {
        QPushButton* button = addButton(actions_[i].name, actions_[i].caption, *buttons);
        connect(button, &QPushButton::clicked, this, [this, i] { run(actions_.at(i)); });
        onRow_.append(button);
    }
    trouble_ = platform::form::named(new QLabel(this), QStringLiteral("laErrore") + texts_.item);
    trouble_->setTextFormat(Qt::PlainText);
    trouble_->setWordWrap(true);
    trouble_->setStyleSheet(QStringLiteral("color: #a02020"));
    trouble_->hide();
    buttons->addWidget(trouble_, 1);
    buttons->addStretch();
    column->addLayout(buttons);
    buildGrid();
    column->addWidget(grid_, 1);
    followFocus();
}

RoomPage::~RoomPage() = default;

QPushButton* RoomPage::addButton(const QString& name, const QString& caption, QLayout& row) {
    QPushButton* button = platform::form::button(name + texts_.item, caption, this);
    button->setAutoDefault(false);
    row.addWidget(button);
    return button;
}

void RoomPage::buildGrid() {
    grid_ = new ReportGrid(this);
    grid_->setObjectName(texts_.grid);
    grid_->setAccessibleName(texts_.caption);
    for (const platform::ReportColumn& column : room_->columns())
        grid_->addColumn(column);
    grid_->setTexts(texts_.empty, QString(), QString());
    grid_->setGroupBoxVisible(false);
    grid_->setSort(-1, Qt::AscendingOrder);
    connect(grid_, &ReportGrid::rowDoubleClicked, this, &RoomPage::open);
    connect(grid_, &ReportGrid::rowRightClicked, this, [this](auto* record, int) { showMenu(record); });
    connect(grid_, &ReportGrid::keyPressed, this, &RoomPage::keyPressed);
    connect(grid_, &ReportGrid::focusedRecordChanged, this, &RoomPage::followFocus);
}

std::unique_ptr<Room> RoomPage::takeRoom() {
    sitting_.reset();
    actions_.clear();
    grid_->clear();
    for (RoomEditor* editor : findChildren<RoomEditor*>(QString(), Qt::FindDirectChildrenOnly)) {
        editor->hide(); // ends its loop
        editor->deleteLater();
    }
    return std::move(room_);
}

void RoomPage::setRoom(std::unique_ptr<Room> room) {
    room_ = std::move(room);
    sitting_ = std::make_unique<QObject>();
    actions_ = room_->actions();
    trouble_->hide();
    refresh();
}

QString RoomPage::focusedId() const {
    const platform::ReportRecord* record = grid_->focusedRecord();
    return record ? record->tag : QString();
}

void RoomPage::followFocus() {
    for (QPushButton* button : std::as_const(onRow_))
        button->setEnabled(!focusedId().isEmpty());
}

void RoomPage::refresh(const QString& idToSelect) {
    database_.takeFailure();
    QList<RoomRow> rows;
    QString why = guarded([&] { rows = room_->rows(); });
    const QString failure = database_.takeFailure();
    if (why.isEmpty()) why = failure;
    trouble_->setText(why);
    trouble_->setVisible(!why.isEmpty());
    if (why.isEmpty()) fill(rows, idToSelect.isEmpty() ? focusedId() : idToSelect);
}

void RoomPage::fill(const QList<RoomRow>& rows, const QString& idToSelect) {
    platform::ReportRecord* selected = nullptr;
    grid_->beginUpdate();
    grid_->clear();
    for (const RoomRow& row : rows) {
        platform::ReportRecord* record = grid_->addRecord();
        record->tag = row.id;
        for (int i = 0; i < row.cells.size() && i < record->cellCount(); ++i) {
            platform::ReportCell& cell = record->cell(i);
            cell.value = row.cells[i];
            if (row.colour.isValid()) cell.changeStyle().foreground = row.colour;
            if (row.bold) cell.setBold(true);
        }
        if (row.id == idToSelect) selected = record;
    }
    grid_->endUpdate();
    if (!selected && grid_->rowCount() > 0) selected = grid_->rowRecord(0);
    grid_->setFocusedRecord(selected);
    followFocus();
}

void RoomPage::attempt(const std::function<void()>& step) {
    const QPointer<QObject> alive(sitting_.get());
    const QString why = guarded(step);
    if (why.isEmpty() || !alive) return;
    platform::dialogs().message(why, platform::MB_WARNING, texts_.caption);
    if (alive) refresh();
}

void RoomPage::edit(const QString& id) {
    attempt([this, id] {
        const QPointer<QObject> alive(sitting_.get());
        const QPointer<RoomEditor> editor(room_->editor(id, this));
        if (!editor) return;
        editor->exec();
        // The patient may have been closed meanwhile, and the editor with it.
        if (!alive) return;
        const std::unique_ptr<RoomEditor> closed(editor);
        const QString saved = closed ? closed->savedId() : QString();
        if (saved.isEmpty()) return;
        refresh(saved);
        emit changed();
    });
}

void RoomPage::removeFocused() {
    const QString id = focusedId();
    if (id.isEmpty()) return;
    attempt([this, id] {
        const QPointer<QObject> alive(sitting_.get());
        const Database::Quiet quiet(database_);
        database_.takeFailure();
        const QString question = room_->removalQuestion(id);
        if (!question.isEmpty()) {
            const auto answer = platform::dialogs().message(question, platform::MB_QUESTION_DEFAULT_NO, texts_.caption);
            if (answer != platform::Answer::Yes || !alive) return;
            if (room_->remove(id)) {
                refresh();
                emit changed();
                return;
            }
        }
        const QString failure = database_.takeFailure();
        throw std::runtime_error(
            (failure.isEmpty() ? QStringLiteral("La voce non è più nell'archivio.") : failure).toStdString());
    });
}

void RoomPage::open() {
    for (const RoomAction& action : std::as_const(actions_)) {
        if (action.onDoubleClick) return run(action);
    }
    if (!focusedId().isEmpty()) edit(focusedId());
}

void RoomPage::run(const RoomAction& action) {
    const QString id = focusedId();
    if (!id.isEmpty()) attempt([action, id] { action.run(id); });
}

void RoomPage::showMenu(platform::ReportRecord* record) {
    if (record) grid_->setFocusedRecord(record);
    const auto plain = [](QString caption) { return caption.remove(QLatin1Char('&')); };
    const bool onRow = record != nullptr;
    QList<platform::MenuEntry> entries{
        {plain(texts_.newCaption), true}, {QStringLiteral("Modifica"), onRow}, {QStringLiteral("Elimina"), onRow}};
    for (const RoomAction& action : std::as_const(actions_))
        entries.append({plain(action.caption), onRow});
    const QPointer<QObject> alive(sitting_.get());
    const int chosen = platform::dialogs().popup(entries);
    if (chosen < 0 || !alive) return;
    if (chosen == 0) return edit(QString());
    if (chosen == 1) return edit(focusedId());
    if (chosen == 2) return removeFocused();
    run(actions_.at(chosen - 3));
}

void RoomPage::keyPressed(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Insert:
        event->accept();
        return edit(QString());
    case Qt::Key_Delete:
        event->accept();
        return removeFocused();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        return open();
    default:
        return;
    }
}

} // namespace desk
