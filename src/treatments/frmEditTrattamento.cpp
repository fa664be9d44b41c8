#include "treatments/frmEditTrattamento.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "treatments/TeethPanel.h"
#include "treatments/TreatmentHeader.h"
#include "treatments/TreatmentLinks.h"
#include "treatments/TreatmentRows.h"
#include "treatments/TreatmentTotals.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmZoomRighiTrattamento.h"
#include "treatments/modSituazioneDente.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

frmEditTrattamento::frmEditTrattamento(const QString& id, const QString& row, QWidget* parent)
    : DocumentEditorOf(*oTrattamenti,
                       {.window = QStringLiteral("frmEditTrattamento"),
                        .title = QStringLiteral("Gestione Trattamento"),
                        .lock = QStringLiteral("Trattamento"),
                        .inUse = QStringLiteral("Attenzione! Trattamento in uso ad altro utente!\r\n"
                                                "Eventuali modifiche verranno tralasciate!"),
                        .readError = QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!"),
                        .saveError = QStringLiteral("Attenzione! Riscontrati errori in salvataggio dati trattamento!")},
                       id, parent)
    , row_(row) {
    build();
    wire();
    open();
}

void frmEditTrattamento::build() {
    namespace form = platform::form;
    // In the order in which Tab comes by.
    header_ = new TreatmentHeader(this);
    teeth_ = new TeethPanel(this);
    tabs_ = form::named(new QTabWidget(this), QStringLiteral("tcDettaglio"));
    rows_ = new TreatmentRows(this);
    links_ = new TreatmentLinks(this);
    totals_ = new TreatmentTotals(this);
    tabs_->addTab(rows_, QStringLiteral("Dettaglio Lavori e Servizi"));
    links_->addPages(*tabs_);

    cbFattura_ = form::button(QStringLiteral("cbFattura"), QStringLiteral("Fatture..."), this);
    cbPreventivo_ = form::button(QStringLiteral("cbPreventivo"), QStringLiteral("Da preventivo..."), this);
    for (QPushButton* button : {cbFattura_, cbPreventivo_}) {
        button->setAutoDefault(false); // Enter belongs to the fields and to the grid
        button->setEnabled(false);     // invoices and estimates are not there yet
    }

    auto* footer = new QHBoxLayout;
    footer->addWidget(cbFattura_);
    footer->addWidget(cbPreventivo_);
    footer->addStretch(1);
    footer->addWidget(totals_);
    footer->addSpacing(16);
    addButtons(*footer);

    auto* column = new QVBoxLayout(this);
    column->addWidget(header_);
    column->addWidget(teeth_);
    column->addWidget(tabs_, 1);
    column->addLayout(footer);
    resizeToScreen(this, QSize(1280, 760));
}

void frmEditTrattamento::wire() {
    connect(rows_, &TreatmentRows::changed, this, &frmEditTrattamento::refreshChart);
    connect(rows_, &TreatmentRows::rowSelected, teeth_, &TeethPanel::plbSelezionaTooh);
    connect(teeth_, &TeethPanel::toothChosen, rows_, &TreatmentRows::highlight);
    connect(teeth_, &TeethPanel::serviceChosen, this,
            [this](const QString& service) { teeth_->plbSelezionaTooh(rows_->teethOfService(service)); });
    connect(teeth_, &TeethPanel::detailsRequested, this, &frmEditTrattamento::openTooth);
    connect(rows_, &TreatmentRows::zoomRequested, this, &frmEditTrattamento::openZoom);
    connect(header_, &TreatmentHeader::advanceInvoiceChanged, this, [this] {
        rows_->setAdvanceInvoice(header_->typedAdvanceInvoice());
        totals_->updateBilling();
    });
}

// ----------------------------------------------------------------------------------------------------------- opening

DocumentHeader& frmEditTrattamento::header() const {
    return *header_;
}

void frmEditTrattamento::prepare() {
    teeth_->loadSituation(QString());
}

std::optional<clsItemTrattamento> frmEditTrattamento::loadItem() {
    return oTrattamenti->salvage(id());
}

void frmEditTrattamento::fill(const clsItemTrattamento& item) {
    header_->fill(item);
    links_->load(item);
    teeth_->loadSituation(item.SituazioneOrale);
    rows_->load(item);
}

void frmEditTrattamento::shown() {
    refreshChart();
    totals_->updateBilling();
}

void frmEditTrattamento::setReadOnly() {
    cancelButton().setText(QStringLiteral("Chiudi"));
    cbFattura_->setEnabled(false);
    rows_->setReadOnly();
    teeth_->setReadOnly();
    links_->setReadOnly();
}

int frmEditTrattamento::exec() {
    if (!rows_->hasRow(row_) || isReadOnly()) return QDialog::exec();
    constexpr int STILL_OPEN = -1;
    setResult(STILL_OPEN);
    activated_ = true;
    const bool isAccepted = rows_->openRow(row_);
    isAccepted ? confirm() : cancel();
    // Who chose to look the data over again, after a save that failed, gets the plan to see.
    return result() == STILL_OPEN ? QDialog::exec() : result();
}

void frmEditTrattamento::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (std::exchange(activated_, true)) return;
    firstActivation();
}

void frmEditTrattamento::firstActivation() {
    if (id().isEmpty() && oConfig && oConfig->AutomaticoRigoVuoto()) rows_->arm(TreatmentRows::NEW);
}

void frmEditTrattamento::openTooth(int index) {
    const ToothPlan plan{header_->number(), header_->date(), isReadOnly()};
    ToothSituation situation = teeth_->situation(index);
    if (ScegliSituazioneDente(plan, teeth_->tooth(index), situation, this)) teeth_->apply(situation);
}

void frmEditTrattamento::openZoom() {
    frmZoomRighiTrattamento zoom(header_->number().text(), this);
    rows_->copyTo(zoom);
    connect(&zoom, &frmZoomRighiTrattamento::rowSelected, teeth_, &TeethPanel::plbSelezionaTooh);
    zoom.exec();
}

void frmEditTrattamento::refreshChart() {
    teeth_->setRows(rows_->forChart());
    totals_->updateWork(rows_->totals());
}

void frmEditTrattamento::pressFunction(int index) {
    if (index > TreatmentRows::REMOVE) return;
    if (tabs_->currentWidget() == rows_)
        rows_->press(static_cast<TreatmentRows::Command>(index));
    else
        links_->pressNotes(index);
}

// -------------------------------------------------------------------------------------------------- saving, closing

void frmEditTrattamento::endEdits() {
    rows_->endEdit();
}

void frmEditTrattamento::compose(clsItemTrattamento& item) {
    header_->compose(item);
    links_->write(item);
    item.SituazioneOrale = teeth_->mouthSituation();
    for (clsItemRigoTrattamento row : rows_->rows()) {
        row.kanno = item.anno;
        row.kprogressivo = item.progressivo;
        item.righi.add(row.progressivo, row);
    }
}

QStringList frmEditTrattamento::losses() const {
    if (!id().isEmpty() || !links_->hasLinks()) return {};
    return {QStringLiteral("Nota Bene: Sono stati collegati degli allegati e/o aggiunti degli scarichi di magazzino!")};
}
