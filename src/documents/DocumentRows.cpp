#include "documents/DocumentRows.h"

#include "documents/RowTable.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"

#include <QColor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

void setUpRowsGrid(platform::ReportGrid& grid) {
    grid.setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    grid.setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    grid.setGroupBoxVisible(false);
    grid.setSort(-1, Qt::AscendingOrder);
}

int positionOf(const platform::ReportGrid& grid, const platform::ReportRecord* record) {
    for (int i = 0; record && i < grid.recordCount(); ++i) {
        if (grid.record(i) == record) return i;
    }
    return -1;
}

DocumentRows::DocumentRows(const QString& ownCommand, QWidget* parent)
    : QWidget(parent)
    , rcRighi_(platform::form::named(new platform::ReportGrid(this), QStringLiteral("rcRighi")))
    , tmRighi_(new QTimer(this))
    , tmSetFocusOnRow_(new QTimer(this)) {
    setUpRowsGrid(*rcRighi_);
    rcRighi_->setEditMode(true, true);
    tmRighi_->setObjectName(QStringLiteral("tmRighi"));
    tmSetFocusOnRow_->setObjectName(QStringLiteral("tmSetFocusOnRow"));
    for (QTimer* timer : {tmRighi_, tmSetFocusOnRow_}) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    buildButtons(ownCommand);
    wire();
}

void DocumentRows::buildButtons(const QString& ownCommand) {
    namespace form = platform::form;
    const std::array<QString, 4> captions{QStringLiteral("Nuovo (F3)"), QStringLiteral("Modifica (F4)"),
                                          QStringLiteral("Elimina (F5)"), ownCommand};
    auto* buttons = new QHBoxLayout;
    for (std::size_t i = 0; i < cbRighi_.size(); ++i) {
        if (captions[i].isEmpty()) continue;
        cbRighi_[i] = form::button(form::arrayName("cbRighi", static_cast<int>(i)), captions[i], this);
        cbRighi_[i]->setAutoDefault(false);
        connect(cbRighi_[i], &QPushButton::clicked, this, [this, i] { arm(static_cast<Command>(i)); });
        buttons->addWidget(cbRighi_[i]);
    }
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(rcRighi_, 1);
    column->addLayout(buttons);
}

void DocumentRows::wire() {
    using platform::ReportGrid;
    using platform::ReportRecord;
    connect(tmRighi_, &QTimer::timeout, this, [this] { run(armedCommand_); });
    connect(tmSetFocusOnRow_, &QTimer::timeout, this, &DocumentRows::takeFocusBack);
    connect(rcRighi_, &ReportGrid::valueChanged, this,
            [this](ReportRecord* record, int column) { cellTyped(position(record), column); });
    connect(rcRighi_, &ReportGrid::keyPressed, this, &DocumentRows::keyPressed);
    connect(rcRighi_, &ReportGrid::rowDoubleClicked, this, &DocumentRows::doubleClicked);
    connect(rcRighi_, &ReportGrid::rowRightClicked, this, [this] { showMenu(); });
    connect(rcRighi_, &ReportGrid::inplaceButton, this, [this](ReportRecord* record, int column) {
        if (record && !readOnly_) openCell(position(record), column);
    });
    connect(rcRighi_, &ReportGrid::focusedRecordChanged, this,
            [this](ReportRecord* record) { rowFocused(position(record)); });
}

QString DocumentRows::rowNumber(int position) {
    return platform::regional().format(position, QStringLiteral("00"));
}

void DocumentRows::setReadOnly() {
    readOnly_ = true;
    cbRighi_[NEW]->setEnabled(false);
    cbRighi_[REMOVE]->setEnabled(false);
    cbRighi_[EDIT]->setText(QStringLiteral("dettagli"));
    rcRighi_->setReadOnly(true);
}

int DocumentRows::position(const platform::ReportRecord* record) const {
    return positionOf(*rcRighi_, record);
}

bool DocumentRows::openCell(int, int) {
    return false;
}

void DocumentRows::rowFocused(int) {}

// ------------------------------------------------------------------------------------------------------ the commands

void DocumentRows::arm(Command command) {
    armedCommand_ = command;
    tmRighi_->start();
}

void DocumentRows::press(Command command) {
    if (cbRighi_[command] && cbRighi_[command]->isEnabled()) cbRighi_[command]->click();
}

void DocumentRows::endEdit() {
    rcRighi_->finishEdit();
}

void DocumentRows::run(int command) {
    armedCommand_ = -1;
    endEdit(); // a command works on what was typed
    const int selected = position(rcRighi_->focusedRecord());
    if (command == NEW && !readOnly_) newRow();
    if (command == EDIT && selected >= 0) editRow(selected);
    if (command == REMOVE && selected >= 0 && !readOnly_) removeRow(selected);
    if (command == OWN) ownCommand();
}

void DocumentRows::moveSelected(int step) {
    const int from = position(rcRighi_->focusedRecord());
    const int to = from + step;
    if (from < 0 || to < 0 || to >= rcRighi_->recordCount() || readOnly_) return;
    moveRow(from, to);
}

void DocumentRows::keyPressed(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool ctrlAlt = modifiers == (Qt::ControlModifier | Qt::AltModifier);
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (rcRighi_->focusedRecord()) arm(EDIT);
        event->accept();
    } else if (ctrlAlt && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        moveSelected(key == Qt::Key_Up ? -1 : 1);
        event->accept();
    }
}

void DocumentRows::showMenu() {
    const bool chosen = rcRighi_->focusedRecord() != nullptr;
    // miRighi: the positions are those of the commands, an empty caption is not shown.
    QList<platform::MenuEntry> entries(4);
    if (!readOnly_) entries[NEW].caption = QStringLiteral("Nuovo rigo");
    if (chosen) entries[EDIT].caption = readOnly_ ? QStringLiteral("Dettagli") : QStringLiteral("Modifica rigo");
    if (chosen && !readOnly_) entries[REMOVE].caption = QStringLiteral("Elimina rigo");
    if (const QPushButton* own = cbRighi_[OWN]; own && own->isEnabled())
        entries[OWN].caption = own->text().section(QStringLiteral(" ("), 0, 0);
    const int choice = platform::dialogs().popup(entries);
    if (choice >= 0) arm(static_cast<Command>(choice));
}

void DocumentRows::doubleClicked(platform::ReportRecord* record, int column) {
    if (!record) return;
    if (readOnly_ || !openCell(position(record), column)) arm(EDIT);
}

// ------------------------------------------------------------------------------------------------------ the keyboard

void DocumentRows::editCell(int row, int column) {
    if (!isVisible() || !isEnabled()) return;
    rcRighi_->setFocus();
    rcRighi_->setFocusedRecord(rcRighi_->record(row));
    rcRighi_->editCell(rcRighi_->record(row), column);
}

void DocumentRows::returnToRow(int row) {
    rowToFocus_ = row;
    tmSetFocusOnRow_->start();
}

// Meanwhile the user may have gone to another row, cell, field or button, and stays there. A search that has closed
// leaves the keyboard in the grid, or nowhere.
void DocumentRows::takeFocusBack() {
    platform::ReportRecord* row = rcRighi_->record(rowToFocus_);
    if (!row || rcRighi_->isEditing() || rcRighi_->focusedRecord() != row) return;
    const QWidget* focus = window()->focusWidget();
    if (!focus || rcRighi_->isAncestorOf(focus)) rcRighi_->setFocus();
}
