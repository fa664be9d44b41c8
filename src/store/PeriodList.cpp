#include "store/PeriodList.h"

#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"
#include "store/modPazienti.h"
#include "store/modWorkspace.h"

#include <QColor>
#include <QCoreApplication>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>
#include <stdexcept>

namespace {

enum MenuEntry { NEW = 1, EDIT, REMOVE, PRINT };

// The tag of a row's first cell keeps whose row it is, for the bold marks.
constexpr int PATIENT_CELL = 0;

QString currentPatientId() {
    const host::Paziente* patient = currentPatient();
    return patient ? patient->ID() : QString();
}

} // namespace

PeriodList::PeriodList(const Settings& settings, QWidget* parent)
    : QWidget(parent)
    , settings_(settings) {
    setObjectName(settings_.name);
    buildWindow();
}

void PeriodList::buildWindow() {
    using namespace platform;
    title_ = form::heading(settings_.titleName, settings_.title, this);
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
    bar->addWidget(filter);

    grid_ = form::named(new ReportGrid(this), settings_.gridName);
    auto* column = new QVBoxLayout(this);
    column->addLayout(bar);
    column->addWidget(grid_, 1);

    pbAttesa_ = form::named(new QLabel(QStringLiteral("Attendere.. caricamento dati in corso.."), this),
                            QStringLiteral("pbAttesa"));
    pbAttesa_->setFrameShape(QFrame::StyledPanel);
    pbAttesa_->setAutoFillBackground(true);
    pbAttesa_->setMargin(18);
    pbAttesa_->hide();

    connect(filter, &QPushButton::clicked, this, [this] { reload(QString()); });
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
}

void PeriodList::prepare() {
    const QDate first(platform::today().year(), platform::today().month(), 1);
    dtpData_[0]->setDate(first);
    dtpData_[1]->setDate(first.addMonths(1).addDays(-1));
    buildColumns(*grid_);
    grid_->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    grid_->setGroupBoxVisible(true);
    grid_->setReadOnly(true);
    grid_->setSort(settings_.sortColumn, Qt::DescendingOrder);
    resize(1000, 560);
    InizializzaForm(this);
    keepGeometry(this);
    read();
}

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
    title_->setText(settings_.title + platform::regional().shortDate(from) + QLatin1String(" - ") +
                    platform::regional().shortDate(to));
    reading_.read(*grid_, [&] {
        const auto rows = runningHost().DB().OpenRecordset(periodQuery(settings_.t1, from, to));
        for (; rows && !rows->isEOF(); rows->MoveNext())
            add(*rows);
    });
}

std::unique_ptr<host::Paziente> PeriodList::patient(const QString& id) {
    std::unique_ptr<host::Paziente> patient = runningHost().Framework().NewPaziente();
    return patient && patient->Init(id) ? std::move(patient) : nullptr;
}

void PeriodList::add(const host::Recordset& row) {
    const std::unique_ptr<host::Paziente> own = patient(row.text(QStringLiteral("idpaziente")));
    if (!own) return;

    platform::ReportRecord* record = grid_->addRecord();
    record->tag = row.text(QStringLiteral("id"));
    record->cell(PATIENT_CELL).tag = own->ID();
    try {
        fill(*record, row, *own);
    } catch (const host::HostError&) {
        throw;
    } catch (const std::runtime_error&) {
        // One record that cannot be read must not hide those of the whole practice.
    }
    markPatient(*record, currentPatientId());
}

void PeriodList::markPatient(platform::ReportRecord& record, const QString& patientId) const {
    const bool own = !patientId.isEmpty() && record.cell(PATIENT_CELL).tag == patientId;
    for (const int column : patientColumns())
        record.cell(column).setBold(own);
}

void PeriodList::refreshMarks() {
    const QString patientId = currentPatientId();
    for (int i = 0; i < grid_->recordCount(); ++i)
        markPatient(*grid_->record(i), patientId);
    grid_->populate();
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
    QStringList entries{QStringLiteral("Nuovo")};
    const auto chosen = grid_->selectedRecords();
    platform::ReportRecord* record = chosen.size() == 1 ? chosen.first() : nullptr;
    if (record) entries << QStringLiteral("Modifica") << QStringLiteral("Elimina") << QStringLiteral("Stampa");
    attempt([this, entries, record] {
        const QPointer<PeriodList> alive(this);
        const int choice = runningHost().Framework().Popup(entries);
        if (!alive || (choice > NEW && grid_->focusedRecord() != record)) return;
        if (choice == NEW) newRecord();
        if (choice == EDIT) edit(*record);
        if (choice == REMOVE) removeRow(record);
        if (choice == PRINT) print(record->tag);
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
    const std::unique_ptr<host::Paziente> own = patient(record.cell(PATIENT_CELL).tag);
    return ApriPaziente(own.get()) && currentPatientId() == own->ID(); // the host may have refused
}

void PeriodList::edit(const platform::ReportRecord& record) {
    const QString id = record.tag; // the change of patient may refill the list
    if (recallPatient(record)) open(id);
}

void PeriodList::newRecord() {
    if (SelezionaPaziente(QString(), QString())) open(QString());
}

void PeriodList::removeRow(platform::ReportRecord* record) {
    const QString id = record->tag;
    const std::unique_ptr<host::Paziente> own = patient(record->cell(PATIENT_CELL).tag);
    const QPointer<PeriodList> alive(this);
    if (!own || !remove(*own, id) || !alive) return;
    if (grid_->focusedRecord() == record) grid_->removeRecord(record);
}

void PeriodList::print(const QString&) {}
