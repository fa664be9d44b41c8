#include "treatments/frmEditDente.h"

#include "chart/ToothBox.h"
#include "chart/clsGraphical.h"
#include "config/clsItemSituazioneDente.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/Collection.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/clsTrattamenti.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

using platform::form::arrayName;
using platform::form::named;

namespace {

constexpr int ENLARGEMENT = 3;

QString pictureFile(int index, const QString& situation) {
    QString file;
    if (!oGraphical || !oGraphical->SituazioneDente(DenteDaIndice(index), situation, file)) return {};
    return platform::files::exists(file) ? file : QString();
}

bool concerns(const clsItemRigoTrattamento& row, const QString& tooth) {
    return ToothList::fromRecord(row.dente, row.denti).contains(tooth);
}

platform::ReportGrid* makeList(const QString& name, const QString& accessibleName, QWidget* parent) {
    auto* grid = named(new platform::ReportGrid(parent), name);
    grid->setAccessibleName(accessibleName);
    grid->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    grid->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    grid->setGroupBoxVisible(false);
    grid->setReadOnly(true);
    grid->setEditMode(false, false);
    grid->setSort(-1, Qt::AscendingOrder);
    return grid;
}

void addColumn(platform::ReportGrid& grid, const QString& caption, int width, bool resizable = false) {
    platform::ReportColumn description;
    description.caption = caption;
    description.width = width;
    description.resizable = resizable;
    grid.addColumn(description);
}

} // namespace

frmEditDente::frmEditDente(const ToothPlan& plan, int index, const ComposedTooth& tooth, QWidget* parent)
    : QDialog(parent)
    , plan_(plan)
    , index_(index)
    , name_(DenteDaIndice(index))
    , tooth_(tooth) {
    setObjectName(QStringLiteral("frmEditDente"));
    setWindowTitle(TitoloForm(QStringLiteral("Gestione Dente")));
    buildFields();
    buildLists();
    layOut();
    InizializzaForm(this);
    cbSituazione_->setFocus();
}

void frmEditDente::buildFields() {
    using platform::form::button;
    cbSituazione_ = named(new QComboBox(this), QStringLiteral("cbSituazione"));
    fillSituations();
    cbNessuna_ = button(QStringLiteral("cbNessuna"), QStringLiteral("Nessuna"), this);
    cbNessuna_->setToolTip(QStringLiteral("Toglie la situazione dal dente"));
    tbDati_ = platform::form::textBox(QStringLiteral("tbDati"), this);
    cbConferma_ = button(QStringLiteral("cbConferma"), QStringLiteral("Conferma"), this);
    cbAnnulla_ = button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbNessuna_->setAutoDefault(false);
    cbConferma_->setDefault(true);
    if (plan_.readOnly) {
        for (QWidget* field : {static_cast<QWidget*>(cbSituazione_), static_cast<QWidget*>(cbNessuna_),
                               static_cast<QWidget*>(tbDati_), static_cast<QWidget*>(cbConferma_)})
            field->setEnabled(false);
        cbAnnulla_->setText(QStringLiteral("Chiudi"));
    }
    connect(cbSituazione_, &QComboBox::currentIndexChanged, this, [this] { showPicture(chosen()); });
    connect(cbNessuna_, &QPushButton::clicked, this, &frmEditDente::clearSituation);
    connect(cbConferma_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cbAnnulla_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmEditDente::buildLists() {
    rcTrattamenti_ = makeList(QStringLiteral("rcTrattamenti"), QStringLiteral("Trattamenti del dente"), this);
    addColumn(*rcTrattamenti_, QStringLiteral("Progressivo"), 80);
    addColumn(*rcTrattamenti_, QStringLiteral("Data"), 70);
    addColumn(*rcTrattamenti_, QStringLiteral("Situazione"), 90);
    addColumn(*rcTrattamenti_, QStringLiteral("Note"), 20, true);
    rcRighi_ = makeList(QStringLiteral("rcRighi"), QStringLiteral("Lavori sul dente"), this);
    addColumn(*rcRighi_, QStringLiteral("Servizio"), 90);
    addColumn(*rcRighi_, QStringLiteral("Descrizione"), 90, true);
    connect(rcTrattamenti_, &platform::ReportGrid::focusedRecordChanged, this, &frmEditDente::showRows);
}

QLayout* frmEditDente::toothColumn() {
    auto* plate = new QWidget(this);
    picture_ = new ToothBox(index_, plate);
    picture_->setTooth(tooth_);
    picture_->setFixedSize(ToothBox::naturalSize(index_) * ENLARGEMENT);
    picture_->numberLabel()->hide(); // the number of the chart; this window has its own
    // In this window there is one tooth, and its parts go by names without a number.
    const std::pair<const char*, const char*> names[] = {{"imTooth", "imTooh"},
                                                         {"imTrt01", "imTrt01"},
                                                         {"imTrt02", "imTrt02"},
                                                         {"imTrt03", "imTrt03"},
                                                         {"imStatusLavori", "imStatusLavori"}};
    for (const auto& [inChart, here] : names) {
        if (auto* part = picture_->findChild<QWidget*>(arrayName(inChart, index_)))
            part->setObjectName(QLatin1String(here));
    }
    picture_->numberLabel()->setObjectName(QString());
    plate->setFixedSize(picture_->size());
    laDente_ = named(new QLabel(name_, this), arrayName("laDente", 0));
    QFont large = laDente_->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    laDente_->setFont(large);
    auto* column = new QVBoxLayout;
    column->addStretch(1);
    // The number stands on the side of the roots, as on the chart.
    if (isUpper(index_)) column->addWidget(laDente_, 0, Qt::AlignHCenter);
    column->addWidget(plate, 0, Qt::AlignHCenter);
    if (!isUpper(index_)) column->addWidget(laDente_, 0, Qt::AlignHCenter);
    column->addStretch(1);
    return column;
}

void frmEditDente::layOut() {
    using platform::form::labelledRow;
    QString plan = QStringLiteral("Trattamento ") + plan_.number.text();
    if (!plan_.date.isEmpty()) plan += QStringLiteral(" del ") + plan_.date;
    auto* situation = new QWidget(this);
    auto* situationRow = new QHBoxLayout(situation);
    situationRow->setContentsMargins(0, 0, 0, 0);
    situationRow->addWidget(cbSituazione_, 1);
    situationRow->addWidget(cbNessuna_);
    situation->setFocusProxy(cbSituazione_);
    auto* fields = new QGridLayout;
    labelledRow(fields, 0, 0, QStringLiteral("Situazione:"), situation);
    labelledRow(fields, 1, 0, QStringLiteral("Note:"), tbDati_);
    fields->setColumnStretch(1, 1);
    cbSituazione_->setAccessibleName(QStringLiteral("Situazione del dente"));
    tbDati_->setAccessibleName(QStringLiteral("Note sul dente"));

    auto* treatments = platform::form::titledArea(QStringLiteral("Trattamenti del dente"), this);
    (new QVBoxLayout(treatments))->addWidget(rcTrattamenti_);
    auto* work = platform::form::titledArea(QStringLiteral("Lavori sul dente"), this);
    (new QVBoxLayout(work))->addWidget(rcRighi_);

    auto* right = new QVBoxLayout;
    right->addWidget(platform::form::heading(QStringLiteral("laTitoloForm"), plan, this));
    right->addLayout(fields);
    right->addWidget(treatments, 1);
    right->addWidget(work, 1);
    auto* middle = new QHBoxLayout;
    middle->addLayout(toothColumn());
    middle->addSpacing(12);
    middle->addLayout(right, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(middle, 1);
    all->addLayout(platform::form::buttonRow({cbConferma_, cbAnnulla_}));
    resize(780, 560);
    QWidget* previous = cbSituazione_;
    for (QWidget* next : {static_cast<QWidget*>(cbNessuna_), static_cast<QWidget*>(tbDati_),
                          static_cast<QWidget*>(rcTrattamenti_->view()), static_cast<QWidget*>(rcRighi_->view()),
                          static_cast<QWidget*>(cbConferma_), static_cast<QWidget*>(cbAnnulla_)}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

void frmEditDente::fillSituations() {
    if (colSituazioniDenti) {
        for (const clsItemSituazioneDente& situation : *colSituazioniDenti)
            cbSituazione_->addItem(situation.descrizione, situation.id);
    }
    cbSituazione_->setCurrentIndex(-1);
}

void frmEditDente::load(const ToothSituation& situation) {
    tbDati_->setText(situation.text);
    cbSituazione_->setCurrentIndex(situation.situation.isEmpty() ? -1 : cbSituazione_->findData(situation.situation));
    showPicture(situation.situation); // also of one that the practice's list no longer has
    fillTreatments();
}

QString frmEditDente::chosen() const {
    return cbSituazione_->currentIndex() < 0 ? QString() : cbSituazione_->currentData().toString();
}

ToothSituation frmEditDente::situation() const {
    ToothSituation situation{index_, chosen(), QString()};
    situation.setText(tbDati_->text());
    return situation;
}

void frmEditDente::showPicture(const QString& situation) {
    const QString file = situation.isEmpty() ? QString() : pictureFile(index_, situation);
    tooth_.picture = file.isEmpty() ? pictureFile(index_, QString()) : file;
    picture_->setTooth(tooth_);
}

void frmEditDente::clearSituation() {
    cbSituazione_->setCurrentIndex(-1);
    cbSituazione_->setFocus();
}

// --------------------------------------------------------------------------------------------- what was done before

void frmEditDente::fillTreatments() {
    const QString number = plan_.number.text();
    platform::ReportRecord* current = nullptr;
    reading_.read(*rcTrattamenti_, [&] {
        if (!oTrattamenti) return;
        for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
            bool isTreated = false;
            for (const clsItemRigoTrattamento& row : item.righi)
                isTreated = isTreated || concerns(row, name_);
            if (!isTreated) continue;
            const ToothSituation then = situationOf(item.SituazioneOrale, index_);
            platform::ReportRecord* record = rcTrattamenti_->addRecord();
            record->tag = item.ID;
            record->cell(0).value = item.number().text();
            record->cell(1).value = item.Data;
            record->cell(2).value = situationName(then.situation);
            record->cell(3).value = then.text;
            if (record->cell(0).value == number) current = record;
        }
    });
    rcTrattamenti_->populate();
    rcTrattamenti_->setFocusedRecord(current);
    showRows();
}

void frmEditDente::showRows() {
    const platform::ReportRecord* chosen = rcTrattamenti_->focusedRecord();
    readingRows_.read(*rcRighi_, [&] {
        const clsItemTrattamento* item = chosen && oTrattamenti ? oTrattamenti->Lista().find(chosen->tag) : nullptr;
        if (!item) return;
        for (const clsItemRigoTrattamento& row : item->righi) {
            if (!concerns(row, name_)) continue;
            platform::ReportRecord* record = rcRighi_->addRecord();
            record->cell(0).value = row.servizio;
            record->cell(1).value = row.descrizione;
        }
    });
    rcRighi_->populate();
}
