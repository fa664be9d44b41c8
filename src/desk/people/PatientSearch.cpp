#include "desk/people/PatientSearch.h"

#include "desk/data/Guarded.h"
#include "desk/data/PatientDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace desk {

using platform::ReportGrid;

PatientSearch::PatientSearch(PatientDirectory& patients, QWidget* parent)
    : QDialog(parent)
    , patients_(patients) {
    setObjectName(QStringLiteral("frmCercaPaziente"));
    setWindowTitle(QStringLiteral("Cerca paziente"));
    setWindowIcon(deskIcon("cerca"));

    text_ = platform::form::textBox(QStringLiteral("tbCerca"), this);
    text_->setPlaceholderText(QStringLiteral("Scrivere una parte del testo da cercare"));
    text_->setClearButtonEnabled(true);
    column_ = platform::form::named(new QComboBox(this), QStringLiteral("cbColonna"));
    column_->addItems({QStringLiteral("Cognome e Nome"), QStringLiteral("Codice Fiscale")});
    buildGrid();
    count_ = platform::form::named(new QLabel(this), QStringLiteral("laTrovati"));
    open_ = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Apri"), this);
    open_->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);

    auto* searchLabel = new QLabel(QStringLiteral("&Cerca:"), this);
    searchLabel->setBuddy(text_);
    auto* columnLabel = new QLabel(QStringLiteral("&in:"), this);
    columnLabel->setBuddy(column_);
    auto* above = new QHBoxLayout;
    above->addWidget(searchLabel);
    above->addWidget(text_, 1);
    above->addWidget(columnLabel);
    above->addWidget(column_);
    auto* below = new QHBoxLayout;
    below->addWidget(count_, 1);
    below->addWidget(open_);
    below->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addLayout(above);
    layout->addWidget(grid_, 1);
    layout->addLayout(below);
    resize(860, 520);
    QWidget* const order[] = {text_, column_, grid_, open_, cancel};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);

    text_->installEventFilter(this);
    connect(text_, &QLineEdit::textChanged, this, &PatientSearch::search);
    connect(column_, &QComboBox::currentIndexChanged, this, &PatientSearch::search);
    connect(open_, &QPushButton::clicked, this, &PatientSearch::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    platform::FormRegistry::add(this);
}

void PatientSearch::buildGrid() {
    grid_ = new ReportGrid(this);
    grid_->setObjectName(QStringLiteral("rcPazienti"));
    grid_->addColumn({.caption = QStringLiteral("Cognome e Nome"), .width = 260, .resizable = true});
    grid_->addColumn({.caption = QStringLiteral("Codice Fiscale"), .width = 170});
    grid_->addColumn({.caption = QStringLiteral("Data di nascita"), .width = 110});
    grid_->addColumn({.caption = QStringLiteral("Medico"), .width = 200, .resizable = true});
    grid_->setTexts(QStringLiteral("Nessun paziente trovato"), QString(), QString());
    grid_->setGroupBoxVisible(false);
    grid_->setSort(-1, Qt::AscendingOrder);
    connect(grid_, &ReportGrid::rowDoubleClicked, this, &PatientSearch::choose);
    connect(grid_, &ReportGrid::keyPressed, this, [this](QKeyEvent* event) {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return;
        event->accept();
        choose();
    });
    connect(grid_, &ReportGrid::focusedRecordChanged, this,
            [this](platform::ReportRecord* record) { open_->setEnabled(record != nullptr); });
}

void PatientSearch::start(const QString& value, const QString& column) {
    column_->setCurrentIndex(PatientDirectory::columnFromName(column) == PatientDirectory::Column::TaxCode ? 1 : 0);
    text_->setText(value);
    search();
    text_->setFocus();
    text_->selectAll();
}

void PatientSearch::search() {
    const PatientDirectory::Column column = PatientDirectory::columnFromName(column_->currentText());
    QList<PatientSummary> found;
    qsizetype more = 0;
    const QString why = guarded([&] {
        found = patients_.search(text_->text(), column);
        if (found.size() >= PatientDirectory::searchLimit)
            more = patients_.countMatches(text_->text(), column) - found.size();
    });
    grid_->beginUpdate();
    grid_->clear();
    for (const PatientSummary& patient : std::as_const(found)) {
        platform::ReportRecord* record = grid_->addRecord();
        record->tag = patient.ID;
        record->cell(0).value = patient.Cognome + QLatin1Char(' ') + patient.Nome;
        record->cell(1).value = patient.codicefiscale;
        record->cell(2).value = platform::regional().shortDate(patient.dataNascita);
        record->cell(3).value = patient.medico;
    }
    grid_->endUpdate();
    if (grid_->rowCount() > 0) grid_->setFocusedRecord(grid_->rowRecord(0));
    open_->setEnabled(!found.isEmpty());
    QString summary = found.size() == 1 ? QStringLiteral("1 paziente trovato")
                                        : QStringLiteral("%1 pazienti trovati").arg(found.size());
    if (more > 0)
        summary = QStringLiteral("Primi %1 pazienti, altri %L2: precisare la ricerca").arg(found.size()).arg(more);
    count_->setText(why.isEmpty() ? summary : why);
}

void PatientSearch::choose() {
    const platform::ReportRecord* record = grid_->focusedRecord();
    if (!record) return;
    chosen_ = record->tag;
    accept();
}

void PatientSearch::moveFocus(int step) {
    if (grid_->rowCount() == 0) return;
    const int row = qBound(0, grid_->rowOf(grid_->focusedRecord()) + step, grid_->rowCount() - 1);
    grid_->setFocusedRecord(grid_->rowRecord(row));
}

bool PatientSearch::eventFilter(QObject* watched, QEvent* event) {
    // The arrows walk through the list while the text keeps the keyboard.
    if (watched == text_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            moveFocus(key == Qt::Key_Down ? 1 : -1);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace desk
