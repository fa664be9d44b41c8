#include "treatments/TreatmentRows.h"

#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Collection.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "store/modUtenti.h"
#include "treatments/GridRow.h"
#include "treatments/clsItemTrattamento.h"
#include "treatments/frmEditRigoTrattamento.h"
#include "treatments/frmZoomRighiTrattamento.h"

#include <QColor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace gridrow;

namespace {

constexpr int DOCTOR_KIND = 0;
constexpr int ASSISTANT_KIND = 3;

// The first entry is empty, so that a choice can be taken back.
QStringList userNames(int kind) {
    QStringList names{QString()};
    for (const host::VoceUtente& user : usersToChooseFrom(kind))
        names << displayName(user);
    return names;
}

QStringList groupNames() {
    QStringList names{QString()};
    if (!colRaggMerc) return names;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        names << group.descrizione;
    return names;
}

} // namespace

TreatmentRows::TreatmentRows(QWidget* parent)
    : QWidget(parent)
    , tmRighi_(new QTimer(this))
    , tmSetFocusOnRow_(new QTimer(this))
    , groups_(groupNames())
    , operators_(userNames(DOCTOR_KIND))
    , assistants_(userNames(ASSISTANT_KIND)) {
    namespace form = platform::form;
    rcRighi_ = form::named(new platform::ReportGrid(this), QStringLiteral("rcRighi"));
    buildColumns();

    const std::array<QString, 4> captions{QStringLiteral("Nuovo (F3)"), QStringLiteral("Modifica (F4)"),
                                          QStringLiteral("Elimina (F5)"), QStringLiteral("Zoom")};
    auto* buttons = new QHBoxLayout;
    for (std::size_t i = 0; i < cbRighi_.size(); ++i) {
        cbRighi_[i] = form::button(form::arrayName("cbRighi", static_cast<int>(i)), captions[i], this);
        cbRighi_[i]->setAutoDefault(false);
        buttons->addWidget(cbRighi_[i]);
    }
    buttons->addStretch(1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(rcRighi_, 1);
    column->addLayout(buttons);

    tmRighi_->setObjectName(QStringLiteral("tmRighi"));
    tmSetFocusOnRow_->setObjectName(QStringLiteral("tmSetFocusOnRow"));
    for (QTimer* timer : {tmRighi_, tmSetFocusOnRow_}) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    wire();
}

void TreatmentRows::buildColumns() {
    for (platform::ReportColumn column : gridrow::columns()) {
        column.editable = rcRighi_->columnCount() != NUMBER;
        rcRighi_->addColumn(column);
    }
    rcRighi_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    rcRighi_->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    rcRighi_->setGroupBoxVisible(false);
    rcRighi_->setSort(-1, Qt::AscendingOrder);
    rcRighi_->setEditMode(true, true);
}

void TreatmentRows::wire() {
    using platform::ReportGrid;
    for (std::size_t i = 0; i < cbRighi_.size(); ++i) {
        connect(cbRighi_[i], &QPushButton::clicked, this, [this, i] { arm(static_cast<Command>(i)); });
    }
    connect(tmRighi_, &QTimer::timeout, this, [this] { run(armedCommand_); });
    connect(tmSetFocusOnRow_, &QTimer::timeout, this, &TreatmentRows::takeFocusBack);
    connect(rcRighi_, &ReportGrid::valueChanged, this, &TreatmentRows::cellChanged);
    connect(rcRighi_, &ReportGrid::keyPressed, this, &TreatmentRows::keyPressed);
    connect(rcRighi_, &ReportGrid::rowDoubleClicked, this, &TreatmentRows::doubleClicked);
    connect(rcRighi_, &ReportGrid::rowRightClicked, this, [this] { showMenu(); });
    connect(rcRighi_, &ReportGrid::inplaceButton, this, [this](platform::ReportRecord* record, int column) {
        if (column == TOOTH) chooseTeeth(record);
    });
    connect(rcRighi_, &ReportGrid::focusedRecordChanged, this, [this](platform::ReportRecord* record) {
        emit rowSelected(record ? teethOf(*record).selection() : QString());
    });
}

// --------------------------------------------------------------------------------------------------------- the rows

void TreatmentRows::load(const clsItemTrattamento& item) {
    rcRighi_->beginUpdate();
    rcRighi_->clear();
    for (const clsItemRigoTrattamento& row : item.righi)
        add(row);
    rcRighi_->endUpdate();
}

void TreatmentRows::offerChoices(platform::ReportRecord& record) const {
    const auto offer = [&record](int cell, const QStringList& choices) {
        record.cell(cell).changeStyle().choices = choices;
    };
    offer(GROUP, groups_);
    offer(OPERATOR, operators_);
    offer(ASSISTANT, assistants_);
}

platform::ReportRecord* TreatmentRows::add(const clsItemRigoTrattamento& row) {
    platform::ReportRecord* record = rcRighi_->addRecord();
    fillRecord(row, *record);
    offerChoices(*record);
    paintRow(*record);
    return record;
}

QList<clsItemRigoTrattamento> TreatmentRows::rows() const {
    QList<clsItemRigoTrattamento> rows;
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        rows << readRecord(*rcRighi_->record(i), i + 1);
    return rows;
}

QList<ChartRow> TreatmentRows::forChart() const {
    QList<ChartRow> rows;
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        rows << gridrow::forChart(*rcRighi_->record(i));
    return rows;
}

void TreatmentRows::setReadOnly() {
    readOnly_ = true;
    rcRighi_->setReadOnly(true);
    cbRighi_[NEW]->setEnabled(false);
    cbRighi_[REMOVE]->setEnabled(false);
    cbRighi_[EDIT]->setText(QStringLiteral("dettagli"));
}

int TreatmentRows::position(const platform::ReportRecord* record) const {
    for (int i = 0; i < rcRighi_->recordCount(); ++i) {
        if (rcRighi_->record(i) == record) return i;
    }
    return -1;
}

void TreatmentRows::renumber() {
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        rcRighi_->record(i)->cell(NUMBER).value = rowNumber(i + 1);
    rcRighi_->populate();
}

void TreatmentRows::highlight(const QString& tooth) {
    for (int i = 0; i < rcRighi_->recordCount(); ++i) {
        platform::ReportRecord& record = *rcRighi_->record(i);
        const bool concerned = !tooth.isEmpty() && teethOf(record).contains(tooth);
        for (int cell = NUMBER; cell <= NOTES; ++cell)
            record.cell(cell).setBold(concerned);
        if (!concerned) paintRow(record);
    }
    rcRighi_->populate();
}

void TreatmentRows::copyTo(frmZoomRighiTrattamento& zoom) const {
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        zoom.add(*rcRighi_->record(i));
}

QString TreatmentRows::teethOfService(const QString& service) const {
    QStringList chosen;
    for (const ChartRow& row : forChart()) {
        if (row.service != service) continue;
        for (const QString& tooth : row.teeth.entries()) {
            if (!tooth.isEmpty() && !chosen.contains(tooth)) chosen << tooth;
        }
    }
    return ToothList(chosen).selection();
}

// ------------------------------------------------------------------------------------------------------ the commands

void TreatmentRows::arm(Command command) {
    armedCommand_ = command;
    tmRighi_->start();
}

void TreatmentRows::press(Command command) {
    if (cbRighi_[command]->isEnabled()) cbRighi_[command]->click();
}

void TreatmentRows::endEdit() {
    rcRighi_->finishEdit();
}

void TreatmentRows::run(int command) {
    armedCommand_ = -1;
    endEdit(); // a command works on what was typed
    if (command == NEW && !readOnly_) newRow();
    if (command == EDIT) editRow(rcRighi_->focusedRecord());
    if (command == REMOVE && !readOnly_) removeRow();
    if (command == ZOOM) emit zoomRequested();
}

void TreatmentRows::newRow() {
    clsItemRigoTrattamento row;
    row.progressivo = rowNumber(rcRighi_->recordCount() + 1);
    row.fattura = advanceInvoice_;
    platform::ReportRecord* record = add(row);
    record->cell(INVOICE).tag.clear(); // no price yet: the catalogue's counts
    rcRighi_->populate();
    emit changed();
    if (!isVisible() || !isEnabled()) return;
    rcRighi_->setFocus();
    rcRighi_->setFocusedRecord(record);
    rcRighi_->editCell(record, SERVICE);
}

void TreatmentRows::removeRow() {
    platform::ReportRecord* record = rcRighi_->focusedRecord();
    if (!record) return;
    rcRighi_->removeRecord(record);
    renumber();
    emit rowSelected(QString());
    emit changed();
}

platform::ReportRecord* TreatmentRows::rowWithNumber(const QString& number) const {
    for (int i = 0; i < rcRighi_->recordCount() && !number.isEmpty(); ++i) {
        if (rcRighi_->record(i)->cell(NUMBER).value == number) return rcRighi_->record(i);
    }
    return nullptr;
}

bool TreatmentRows::openRow(const QString& number) {
    return editRow(rowWithNumber(number));
}

bool TreatmentRows::editRow(platform::ReportRecord* record) {
    if (!record) return false;
    clsItemRigoTrattamento row = readRecord(*record, position(record) + 1);
    if (!ModificaRigoTrattamento(row, readOnly_)) return false;
    setRows(row, *record);
    paintRow(*record);
    rcRighi_->refreshRecord(record);
    emit changed();
    emit rowSelected(teethOf(*record).selection());
    return true;
}

void TreatmentRows::moveRow(int step) {
    platform::ReportRecord* record = rcRighi_->focusedRecord();
    if (!record || readOnly_) return;
    const int from = position(record);
    const int to = from + step;
    if (to < 0 || to >= rcRighi_->recordCount()) return;
    rcRighi_->moveRecord(from, to);
    renumber();
    rcRighi_->setFocusedRecord(record);
    emit changed();
}

void TreatmentRows::keyPressed(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool ctrlAlt = modifiers == (Qt::ControlModifier | Qt::AltModifier);
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (rcRighi_->focusedRecord()) arm(EDIT);
        event->accept();
    } else if (ctrlAlt && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        moveRow(key == Qt::Key_Up ? -1 : 1);
        event->accept();
    }
}

void TreatmentRows::showMenu() {
    const bool chosen = rcRighi_->focusedRecord() != nullptr;
    // miRighi: the positions are those of the commands, an empty caption is not shown.
    QList<platform::MenuEntry> entries(4);
    if (!readOnly_) entries[NEW].caption = QStringLiteral("Nuovo rigo");
    if (chosen) entries[EDIT].caption = readOnly_ ? QStringLiteral("Dettagli") : QStringLiteral("Modifica rigo");
    if (chosen && !readOnly_) entries[REMOVE].caption = QStringLiteral("Elimina rigo");
    entries[ZOOM].caption = QStringLiteral("Zoom");
    const int choice = platform::dialogs().popup(entries);
    if (choice >= 0) arm(static_cast<Command>(choice));
}

void TreatmentRows::doubleClicked(platform::ReportRecord* record, int column) {
    if (!record) return;
    if (column == TOOTH && !readOnly_)
        chooseTeeth(record);
    else
        arm(EDIT);
}
