#include "platform/ListPage.h"

#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Guarded.h"
#include "platform/RecordForm.h"
#include "platform/ReportGrid.h"

#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace platform {

QList<ListCommand> editCommands(const QString& item, const QString& newCaption,
                                std::function<RecordForm*(const QString& id, QWidget* parent)> form,
                                std::function<bool(const QString& id, ListPage& page)> remove) {
    const auto edit = [form = std::move(form)](const QString& id, ListPage& page) -> std::optional<QString> {
        RecordForm* made = form(id, &page);
        const QString stored = made ? RecordForm::run(made) : QString();
        return stored.isEmpty() ? std::nullopt : std::optional(stored);
    };
    const auto removed = [remove = std::move(remove)](const QString& id, ListPage& page) -> std::optional<QString> {
        return remove(id, page) ? std::optional(QString()) : std::nullopt;
    };
    return {{.name = QStringLiteral("cbNuovo") + item,
             .caption = newCaption,
             .run = [edit](const QString&, ListPage& page) { return edit(QString(), page); },
             .keys = {Qt::Key_Insert},
             .onRow = false},
            {.name = QStringLiteral("cbModifica") + item,
             .caption = QStringLiteral("&Modifica"),
             .run = edit,
             .main = true},
            {.name = QStringLiteral("cbElimina") + item,
             .caption = QStringLiteral("&Elimina"),
             .run = removed,
             .keys = {Qt::Key_Delete}}};
}

ListCommand closeCommand(const QString& name, const QString& caption, QDialog& window) {
    return {.name = name,
            .caption = caption,
            .run = [&window](const QString&, ListPage&) -> std::optional<QString> {
                window.reject();
                return std::nullopt;
            },
            .onRow = false,
            .inMenu = false};
}

ListPage::ListPage(ListSource source, Buttons buttons, QWidget* parent)
    : QWidget(parent)
    , source_(std::move(source))
    , sitting_(std::make_unique<QObject>()) {
    setObjectName(source_.name);
    auto* column = new QVBoxLayout(this);
    const int margin = buttons == Buttons::Above ? 6 : 12;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(buttons == Buttons::Above ? 6 : 10);
    status_ = form::named(new QLabel(this), source_.status);
    status_->setTextFormat(Qt::PlainText);
    if (!source_.searchColumns.isEmpty()) buildSearch(*column);
    if (buttons == Buttons::Above) buildButtons(*column, buttons);
    buildGrid();
    column->addWidget(grid_, 1);
    if (buttons == Buttons::Below) buildButtons(*column, buttons);
    say({}, false);
    followFocus();
}

ListPage::~ListPage() = default;

void ListPage::buildSearch(QBoxLayout& column) {
    text_ = form::textBox(QStringLiteral("tbCerca"), this);
    text_->setPlaceholderText(QStringLiteral("Scrivere una parte del testo da cercare"));
    text_->setClearButtonEnabled(true);
    text_->installEventFilter(this);
    column_ = form::named(new QComboBox(this), QStringLiteral("cbColonna"));
    column_->addItems(source_.searchColumns);
    auto* textLabel = new QLabel(QStringLiteral("&Cerca:"), this);
    textLabel->setBuddy(text_);
    auto* columnLabel = new QLabel(QStringLiteral("&in:"), this);
    columnLabel->setBuddy(column_);
    auto* line = new QHBoxLayout;
    line->addWidget(textLabel);
    line->addWidget(text_, 1);
    line->addWidget(columnLabel);
    line->addWidget(column_);
    column.addLayout(line);
    connect(text_, &QLineEdit::textChanged, this, [this] { read({}, 0); });
    connect(column_, &QComboBox::currentIndexChanged, this, [this] { read({}, 0); });
}

void ListPage::buildButtons(QBoxLayout& column, Buttons place) {
    const bool below = place == Buttons::Below;
    for (qsizetype i = 0; i < source_.commands.size(); ++i) {
        const ListCommand& command = source_.commands[i];
        QPushButton* button = form::button(command.name, command.caption, this);
        button->setAutoDefault(false);
        button->setDefault(below && command.main);
        connect(button, &QPushButton::clicked, this, [this, i] { run(i); });
        buttons_.append(button);
    }
    auto* line = below ? form::buttonRow(buttons_) : new QHBoxLayout;
    if (below) {
        line->insertWidget(0, status_);
    } else {
        line->setSpacing(6);
        for (QPushButton* button : std::as_const(buttons_))
            line->addWidget(button);
        status_->setWordWrap(true);
        line->addWidget(status_, 1);
        line->addStretch();
    }
    column.addLayout(line);
}

void ListPage::buildGrid() {
    grid_ = form::named(new ReportGrid(this), source_.grid);
    grid_->setAccessibleName(source_.caption);
    for (const ReportColumn& column : std::as_const(source_.columns))
        grid_->addColumn(column);
    grid_->setTexts(source_.empty, QString(), QString());
    grid_->setGroupBoxVisible(false);
    grid_->setSort(-1, Qt::AscendingOrder);
    connect(grid_, &ReportGrid::rowDoubleClicked, this, &ListPage::runMain);
    connect(grid_, &ReportGrid::rowRightClicked, this, [this](auto* record, int) { showMenu(record); });
    connect(grid_, &ReportGrid::keyPressed, this, &ListPage::keyPressed);
    connect(grid_, &ReportGrid::focusedRecordChanged, this, &ListPage::followFocus);
}

void ListPage::leave() {
    sitting_.reset();
    grid_->clear();
    for (QDialog* form : findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
        form->hide(); // ends its loop
        form->deleteLater();
    }
    source_.rows = nullptr;
    for (ListCommand& command : source_.commands)
        command.run = nullptr;
}

void ListPage::enter(ListSource source) {
    source_ = std::move(source);
    sitting_ = std::make_unique<QObject>();
    say({}, false);
    refresh();
}

QString ListPage::focusedId() const {
    const ReportRecord* record = grid_->focusedRecord();
    return record ? record->tag : QString();
}

void ListPage::followFocus() {
    const bool row = grid_->focusedRecord() != nullptr;
    for (qsizetype i = 0; i < buttons_.size(); ++i)
        buttons_[i]->setEnabled(row || !source_.commands[i].onRow);
}

void ListPage::refresh(const QString& idToFocus) {
    const ReportRecord* focused = grid_->focusedRecord();
    read(idToFocus.isEmpty() ? focusedId() : idToFocus, qMax(0, grid_->rowOf(focused)));
}

void ListPage::search(const ListQuery& query) {
    const QSignalBlocker columnQuiet(column_);
    const QSignalBlocker textQuiet(text_);
    column_->setCurrentIndex(query.column);
    text_->setText(query.text);
    text_->setFocus();
    text_->selectAll();
    read({}, 0);
}

void ListPage::read(const QString& idToFocus, int otherwise) {
    const ListQuery query = text_ ? ListQuery{text_->text(), column_->currentIndex()} : ListQuery{};
    ListRows found;
    const QString why = guarded([&] { found = source_.rows(query); });
    say(why.isEmpty() ? found.summary : why, !why.isEmpty());
    if (why.isEmpty()) fill(found.rows, idToFocus, otherwise);
}

void ListPage::say(const QString& text, bool trouble) {
    status_->setText(text);
    if (status_->styleSheet().isEmpty() == trouble)
        status_->setStyleSheet(trouble ? QStringLiteral("color: #a02020") : QString());
    status_->setVisible(!text.isEmpty());
}

void ListPage::fill(const QList<ListRow>& rows, const QString& idToFocus, int otherwise) {
    ReportRecord* focused = nullptr;
    grid_->beginUpdate();
    grid_->clear();
    for (const ListRow& row : rows) {
        ReportRecord* record = grid_->addRecord();
        record->tag = row.id;
        for (int i = 0; i < row.cells.size() && i < record->cellCount(); ++i) {
            ReportCell& cell = record->cell(i);
            cell.value = row.cells[i];
            if (row.colour.isValid()) cell.changeStyle().foreground = row.colour;
            if (row.bold) cell.setBold(true);
        }
        if (row.id == idToFocus) focused = record;
    }
    grid_->endUpdate();
    if (!focused && grid_->rowCount() > 0) focused = grid_->rowRecord(qMin(otherwise, grid_->rowCount() - 1));
    grid_->setFocusedRecord(focused);
    followFocus();
}

void ListPage::run(qsizetype command) {
    // The source may be exchanged while a person thinks.
    const auto action = source_.commands[command].run;
    const QString id = focusedId();
    if (!action || (source_.commands[command].onRow && id.isEmpty())) return;
    const QPointer<QObject> alive(sitting_.get());
    std::optional<QString> touched;
    const QString why = guarded([&] { touched = action(id, *this); });
    if (!alive) return;
    if (!why.isEmpty()) {
        dialogs().message(why, MB_WARNING, source_.caption);
        if (alive) refresh();
    } else if (touched) {
        refresh(*touched);
        emit changed();
    }
}

bool ListPage::runMain() {
    for (qsizetype i = 0; i < source_.commands.size(); ++i) {
        if (!source_.commands[i].main) continue;
        run(i);
        return true;
    }
    return false;
}

bool ListPage::agreed(const QString& question) {
    const QPointer<QObject> alive(sitting_.get());
    const Answer answer = dialogs().message(question, MB_QUESTION_DEFAULT_NO, source_.caption);
    return answer == Answer::Yes && alive;
}

void ListPage::showMenu(ReportRecord* record) {
    if (record) grid_->setFocusedRecord(record);
    QList<MenuEntry> entries;
    QList<qsizetype> commands;
    for (qsizetype i = 0; i < source_.commands.size(); ++i) {
        const ListCommand& command = source_.commands[i];
        if (!command.inMenu) continue;
        entries.append({QString(command.caption).remove(QLatin1Char('&')), record || !command.onRow});
        commands.append(i);
    }
    if (entries.isEmpty()) return;
    const QPointer<QObject> alive(sitting_.get());
    const int chosen = dialogs().popup(entries);
    if (chosen >= 0 && alive) run(commands[chosen]);
}

void ListPage::keyPressed(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->setAccepted(runMain());
        return;
    }
    runByKey(event);
}

void ListPage::keyPressEvent(QKeyEvent* event) {
    QWidget::keyPressEvent(event);
    // Also while a button has the keyboard; there the others have a meaning of their own.
    if (event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35) runByKey(event);
}

void ListPage::runByKey(QKeyEvent* event) {
    for (qsizetype i = 0; i < source_.commands.size(); ++i) {
        if (!source_.commands[i].keys.contains(event->key())) continue;
        event->accept();
        return run(i);
    }
}

// The arrows walk through the list while the search line keeps the keyboard.
bool ListPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == text_ && event->type() == QEvent::KeyPress && grid_->rowCount() > 0) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            const int row = grid_->rowOf(grid_->focusedRecord()) + (key == Qt::Key_Down ? 1 : -1);
            grid_->setFocusedRecord(grid_->rowRecord(qBound(0, row, grid_->rowCount() - 1)));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace platform
