#include "documents/PeriodList.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"
#include "platform/WaitCursor.h"
#include "store/modPazienti.h"
#include "store/modWorkspace.h"

#include <QCoreApplication>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

enum MenuEntry { NEW = 1, EDIT, REMOVE, PRINT };

// The tag of a row's first cell keeps whose row it is, for the bold marks.
constexpr int PATIENT_CELL = 0;

constexpr int FEW = 1000; // rows that are read whole before anybody has to wait

QString currentPatientId() {
    const host::Paziente* patient = currentPatient();
    return patient ? patient->ID() : QString();
}

std::unique_ptr<host::Paziente> patientOf(const QString& id) {
    std::unique_ptr<host::Paziente> patient = runningHost().Framework().NewPaziente();
    return patient && patient->Init(id) ? std::move(patient) : nullptr;
}

DocumentRow rowOf(const host::Recordset& row) {
    return {row.text(QStringLiteral("id")),
            platform::regional().shortDate(row.value(QStringLiteral("data")).toDate()),
            row.text(QStringLiteral("idrif1")), row.text(QStringLiteral("descrizione")),
            row.value(QStringLiteral("m1"))};
}

} // namespace

PeriodList::PeriodList(DocumentKind kind, QWidget* parent)
    : QWidget(parent)
    , kind_(std::move(kind)) {
    setObjectName(QStringLiteral("frmMDI") + kind_.plural);
    buildWindow();
    prepare();
}

void PeriodList::buildWindow() {
    auto* column = new QVBoxLayout(this);
    buildHead(*column);
    grid_ = platform::form::named(new platform::ReportGrid(this), QStringLiteral("rc") + kind_.plural);
    column->addWidget(grid_, 1);
    buildFoot(*column);

    pbAttesa_ = platform::form::named(new QLabel(QStringLiteral("Attendere.. caricamento dati in corso.."), this),
                                      QStringLiteral("pbAttesa"));
    pbAttesa_->setFrameShape(QFrame::StyledPanel);
    pbAttesa_->setAutoFillBackground(true);
    pbAttesa_->setMargin(18);
    pbAttesa_->hide();
    connectGrid();
    late_ = std::make_unique<LateMemos>(
        *grid_, LateMemos::Work{[this](auto& record, const DocumentRow& row) { readMemo(record, row); },
                                [this] { showProgress(); },
                                [this](const host::HostError& error) {
                                    reading_.failed(*grid_, error);
                                    showProgress();
                                }});
}

void PeriodList::buildHead(QBoxLayout& column) {
    using namespace platform;
    title_ = form::heading(QStringLiteral("laTitolo") + kind_.plural, QString(), this);
    auto* bar = new QHBoxLayout;
    bar->addWidget(title_, 1);
    const std::array<QString, 2> captions{QStringLiteral("dal"), QStringLiteral("al")};
    for (std::size_t i = 0; i < dtpData_.size(); ++i) {
        dtpData_[i] = form::dateBox(form::arrayName("dtpData", static_cast<int>(i)), this);
        auto* caption = new QLabel(captions[i], this);
        caption->setBuddy(dtpData_[i]);
        bar->addWidget(caption);
        bar->addWidget(dtpData_[i]);
    }
    QPushButton* filter = form::button(QStringLiteral("cbFiltra"), QStringLiteral("Filtra"), this);
    connect(filter, &QPushButton::clicked, this, [this] { reload(QString()); });
    bar->addWidget(filter);
    column.addLayout(bar);
}

void PeriodList::buildFoot(QBoxLayout& column) {
    foot_ = new QWidget(this);
    laLettura_ = platform::form::named(new QLabel(foot_), QStringLiteral("laLettura"));
    cbInterrompi_ =
        platform::form::button(QStringLiteral("cbInterrompi"), QStringLiteral("Interrompi"), foot_);
    connect(cbInterrompi_, &QPushButton::clicked, this, &PeriodList::interrupt);
    auto* bar = new QHBoxLayout(foot_);
    bar->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(laLettura_, 1);
    bar->addWidget(cbInterrompi_);
    column.addWidget(foot_);
    foot_->hide();
}

void PeriodList::connectGrid() {
    using platform::ReportGrid;
    using platform::ReportRecord;
    connect(grid_, &ReportGrid::rowDoubleClicked, this, [this](ReportRecord* record) {
        if (record) attempt([this, record] { edit(*record); });
    });
    connect(grid_, &ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
        event->accept();
        // As a double click.
        if (const ReportRecord* chosen = grid_->focusedRecord()) attempt([this, chosen] { edit(*chosen); });
    });
    connect(grid_, &ReportGrid::rowRightClicked, this, [this] { showMenu(); });
    // Rows whose cells are not known yet have no place in such an order.
    connect(grid_, &ReportGrid::orderRequested, this, [this](int column) {
        if (!orderNeedsMemo(column)) return;
        const platform::WaitCursor waiting;
        late_->finish();
    });
}

void PeriodList::prepare() {
    const QDate today = platform::today();
    const QDate first(today.year(), today.month(), 1);
    dtpData_[0]->setDate(first);
    dtpData_[1]->setDate(kind_.period == DocumentKind::Period::WholeMonth ? first.addMonths(1).addDays(-1) : today);
    for (const DocumentColumn& column : std::as_const(kind_.columns))
        grid_->addColumn(column.look);
    dressList(*grid_);
    grid_->setSort(kind_.sortColumn, Qt::DescendingOrder);
    resize(1000, 560);
    InizializzaForm(this);
    keepGeometry(this);
    read();
}

// ------------------------------------------------------------------------------------------------------------- reading

void PeriodList::reload(const QString& idToSelect) {
    const platform::ReportRecord* chosen = grid_->focusedRecord();
    const QString id = idToSelect.isEmpty() && chosen ? chosen->tag : idToSelect;

    // The window may be closed while the events are pumped.
    const QPointer<PeriodList> alive(this);
    centreWait();
    pbAttesa_->show();
    pbAttesa_->raise();
    QCoreApplication::processEvents();
    if (!alive) return;
    {
        const auto waiting = qScopeGuard([this] { pbAttesa_->hide(); });
        read();
        select(id);
    }
    QCoreApplication::processEvents();
}

void PeriodList::read() {
    const QDate from = dtpData_[0]->date();
    const QDate to = dtpData_[1]->date();
    title_->setText(QStringLiteral("ELENCO ") + kind_.plural.toUpper() + QLatin1Char(' ') +
                    platform::regional().shortDate(from) + QLatin1String(" - ") + platform::regional().shortDate(to));
    late_->clear();
    patients_.clear();
    const bool wasRead = reading_.read(*grid_, [&] {
        const auto rows = runningHost().DB().OpenRecordset(periodQuery(kind_.t1, from, to));
        const bool memosToo = rows && (rows->RecordCount() <= FEW || orderNeedsMemos());
        for (; rows && !rows->isEOF(); rows->MoveNext())
            add(*rows, memosToo);
    });
    if (!wasRead) late_->clear();
    all_ = grid_->recordCount();
    late_->start();
    showProgress();
}

void PeriodList::add(const host::Recordset& row, bool memosToo) {
    const QString rowPatient = row.text(QStringLiteral("idpaziente"));
    auto known = patients_.constFind(rowPatient);
    if (known == patients_.cend()) {
        const std::unique_ptr<host::Paziente> found = patientOf(rowPatient);
        known = patients_.insert(rowPatient, found ? found->ID() : QString());
    }
    if (known->isEmpty()) return;

    DocumentRow document = rowOf(row);
    platform::ReportRecord* record = grid_->addRecord();
    record->tag = document.id;
    record->cell(PATIENT_CELL).tag = *known;
    showCells(*record, kind_.early(document));
    markPatient(*record, currentPatientId());
    if (memosToo) {
        readMemo(*record, document);
    } else {
        late_->add(record, std::move(document));
    }
}

void PeriodList::readMemo(platform::ReportRecord& record, const DocumentRow& row) {
    const std::unique_ptr<host::Paziente> own = patientOf(record.cell(PATIENT_CELL).tag);
    if (!own) return;
    try {
        const DocumentCells cells = kind_.whole(row, *own);
        for (int i = 0; i < kind_.columns.size() && !moved_; ++i)
            moved_ = !orderNeedsMemo(i) && record.cell(i).value != cells.texts.value(i);
        showCells(record, cells);
    } catch (const host::HostError&) {
        throw;
    } catch (const std::runtime_error& error) {
        // One record that cannot be read must not hide those of the whole practice.
        qWarning("%s %s: %s", qUtf8Printable(kind_.t1), qUtf8Printable(row.number), error.what());
    }
}

bool PeriodList::orderNeedsMemo(int column) const {
    return kind_.columns.value(column).field != DocumentField::Row;
}

bool PeriodList::orderNeedsMemos() const {
    QList<int> columns = grid_->groups();
    if (grid_->sortColumn() >= 0) columns << grid_->sortColumn();
    return std::any_of(columns.cbegin(), columns.cend(), [this](int column) { return orderNeedsMemo(column); });
}

void PeriodList::showProgress() {
    if (std::exchange(moved_, false)) grid_->populate();
    foot_->setVisible(late_->left() > 0);
    cbInterrompi_->setVisible(late_->left() > 0);
    if (late_->left() == 0) return;
    laLettura_->setStyleSheet(QString());
    laLettura_->setText(QStringLiteral("Lettura in corso: %1 di %2").arg(all_ - late_->left()).arg(all_));
}

// A row without its state would be taken for one that has none: what was not read goes.
void PeriodList::interrupt() {
    grid_->removeRecords([this](const platform::ReportRecord& record) { return late_->awaits(record); });
    late_->clear();
    cbInterrompi_->hide();
    laLettura_->setText(QStringLiteral("Elenco parziale: letti %1 di %2. Filtra legge da capo.")
                            .arg(grid_->recordCount())
                            .arg(all_));
    laLettura_->setStyleSheet(QStringLiteral("font-weight: bold; color: %1")
                                  .arg(platform::noticeColour(platform::Notice::Error).name()));
}

// ------------------------------------------------------------------------------------------------------------ commands

void PeriodList::markPatient(platform::ReportRecord& record, const QString& patientId) const {
    const bool own = !patientId.isEmpty() && record.cell(PATIENT_CELL).tag == patientId;
    for (int i = 0; i < kind_.columns.size(); ++i) {
        const DocumentField field = kind_.columns[i].field;
        if (field == DocumentField::TaxCode || field == DocumentField::Patient) record.cell(i).setBold(own);
    }
}

void PeriodList::refreshMarks() {
    const QString patientId = currentPatientId();
    for (int i = 0; i < grid_->recordCount(); ++i)
        markPatient(*grid_->record(i), patientId);
    grid_->view()->viewport()->update();
}

void PeriodList::select(const QString& id) {
    if (id.isEmpty()) return;
    for (int i = 0; i < grid_->recordCount(); ++i) {
        if (grid_->record(i)->tag != id) continue;
        grid_->setFocusedRecord(grid_->record(i));
        return;
    }
}

void PeriodList::centreWait() {
    pbAttesa_->adjustSize();
    pbAttesa_->move((width() - pbAttesa_->width()) / 2, (height() - pbAttesa_->height()) / 2);
}

void PeriodList::showMenu() {
    const auto chosen = grid_->selectedRecords();
    platform::ReportRecord* record = chosen.size() == 1 ? chosen.first() : nullptr;
    const QStringList entries = record ? kind_.commands : kind_.commands.mid(0, 1);
    attempt([this, entries, record] {
        const QPointer<PeriodList> alive(this);
        const int choice = runningHost().Framework().Popup(entries);
        if (!alive || (choice > NEW && grid_->focusedRecord() != record)) return;
        if (choice == NEW) newRecord();
        if (choice == EDIT) edit(*record);
        if (choice == REMOVE) removeRow(record);
        if (choice == PRINT) print(*record);
    });
}

// The windows of another host may not bear what a command throws.
void PeriodList::attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& error) {
        platform::dialogs().message(QStringLiteral("Attenzione! Operazione non riuscita!\r\nErrore: ") +
                                        QString::fromUtf8(error.what()),
                                    platform::MB_WARNING, QString::fromUtf16(CORVALA_TITLE));
    }
}

bool PeriodList::recallPatient(const platform::ReportRecord& record) const {
    const std::unique_ptr<host::Paziente> own = patientOf(record.cell(PATIENT_CELL).tag);
    return ApriPaziente(own.get()) && currentPatientId() == own->ID(); // the host may have refused
}

void PeriodList::edit(const platform::ReportRecord& record) {
    const QString id = record.tag; // the change of patient may refill the list
    if (recallPatient(record)) kind_.open(id);
}

void PeriodList::newRecord() {
    if (SelezionaPaziente(QString(), QString())) kind_.open(QString());
}

void PeriodList::removeRow(platform::ReportRecord* record) {
    const QString id = record->tag;
    const std::unique_ptr<host::Paziente> own = patientOf(record->cell(PATIENT_CELL).tag);
    const QPointer<PeriodList> alive(this);
    if (!own || !kind_.remove(*own, id) || !alive) return;
    if (grid_->focusedRecord() != record) return;
    late_->forget(record);
    grid_->removeRecord(record);
}

void PeriodList::print(const platform::ReportRecord& record) {
    if (!kind_.print) return;
    const std::unique_ptr<host::Paziente> own = patientOf(record.cell(PATIENT_CELL).tag);
    if (own) kind_.print(*own, record.tag);
}
