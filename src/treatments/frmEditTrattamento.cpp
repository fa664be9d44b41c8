#include "treatments/frmEditTrattamento.h"

#include "config/clsConfig.h"
#include "host/Changes.h"
#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "store/modLock.h"
#include "treatments/TeethPanel.h"
#include "treatments/TreatmentHeader.h"
#include "treatments/TreatmentLinks.h"
#include "treatments/TreatmentRows.h"
#include "treatments/TreatmentTotals.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmZoomRighiTrattamento.h"
#include "treatments/modSituazioneDente.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <exception>

namespace {

const char* const TAG = "Tag";
const QString LOCK = QStringLiteral("Trattamento");
const QString LINE_END = QStringLiteral("\r\n");

platform::Answer message(const QString& text, int value) {
    return platform::dialogs().message(text, value, QString::fromUtf16(CORVALA_TITLE));
}

} // namespace

frmEditTrattamento::frmEditTrattamento(const QString& id, const QString& row, QWidget* parent)
    : QDialog(parent)
    , id_(id)
    , row_(row) {
    setObjectName(QStringLiteral("frmEditTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Gestione Trattamento")));
    build();
    wire();
    InizializzaForm(this);
    keepGeometry(this);
    read();
    if (oHost) oHost->Framework().setDialogCancel(true);
}

frmEditTrattamento::~frmEditTrattamento() {
    releaseLock();
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
    cbConferma_ = form::button(QStringLiteral("cbConferma"), QStringLiteral("Conferma"), this);
    cbAnnulla_ = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbAnnulla_->setProperty(TAG, QString());
    // Enter belongs to the fields and to the grid.
    for (QPushButton* button : {cbFattura_, cbPreventivo_, cbConferma_, cbAnnulla_})
        button->setAutoDefault(false);
    // Invoices and estimates are not there yet.
    cbFattura_->setEnabled(false);
    cbPreventivo_->setEnabled(false);

    auto* footer = new QHBoxLayout;
    footer->addWidget(cbFattura_);
    footer->addWidget(cbPreventivo_);
    footer->addStretch(1);
    footer->addWidget(totals_);
    footer->addSpacing(16);
    footer->addWidget(cbConferma_);
    footer->addWidget(cbAnnulla_);

    auto* column = new QVBoxLayout(this);
    column->addWidget(header_);
    column->addWidget(teeth_);
    column->addWidget(tabs_, 1);
    column->addLayout(footer);
    resizeToScreen(this, QSize(1280, 760));
}

void frmEditTrattamento::wire() {
    connect(cbConferma_, &QPushButton::clicked, this, &frmEditTrattamento::confirm);
    connect(cbAnnulla_, &QPushButton::clicked, this, &frmEditTrattamento::cancel);
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

void frmEditTrattamento::read() {
    try {
        if (id_.isEmpty()) {
            header_->prepare();
            teeth_->loadSituation(QString());
        } else {
            loadTreatment();
        }
        refreshChart();
        totals_->updateBilling();
    } catch (const std::exception& error) {
        notRead(QString::fromUtf8(error.what()));
    }
}

// What was read only in part must not be saved over the whole.
void frmEditTrattamento::notRead(const QString& why) {
    releaseLock();
    setReadOnly();
    message(QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!") + LINE_END +
                QStringLiteral("Errore: ") + why,
            platform::MB_WARNING);
}

void frmEditTrattamento::loadTreatment() {
    // Marked before it is read: what others saved until then is in it.
    const bool own = CreaLock(LOCK, id_);
    if (own) cbAnnulla_->setProperty(TAG, id_);
    const auto item = oTrattamenti->salvage(id_);
    if (!item) { // the window stays empty, without a word
        releaseLock();
        return;
    }
    if (!own) {
        setReadOnly();
        message(QStringLiteral("Attenzione! Trattamento in uso ad altro utente!") + LINE_END +
                    QStringLiteral("Eventuali modifiche verranno tralasciate!"),
                platform::MB_WARNING);
    }
    header_->load(*item);
    links_->load(*item);
    teeth_->loadSituation(item->SituazioneOrale);
    rows_->load(*item);
    if (!item->fault.isEmpty()) notRead(item->fault);
}

void frmEditTrattamento::setReadOnly() {
    readOnly_ = true;
    cbConferma_->setEnabled(false);
    cbAnnulla_->setText(QStringLiteral("Chiudi"));
    cbFattura_->setEnabled(false);
    rows_->setReadOnly();
    teeth_->setReadOnly();
    links_->setReadOnly();
}

EditorResult frmEditTrattamento::run() {
    const bool isConfirmed = exec() == Accepted;
    return {isConfirmed, id_};
}

int frmEditTrattamento::exec() {
    if (!rows_->hasRow(row_) || id_.isEmpty() || readOnly_) return QDialog::exec();
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
    if (id_.isEmpty() && oConfig && oConfig->AutomaticoRigoVuoto()) rows_->arm(TreatmentRows::NEW);
}

void frmEditTrattamento::openTooth(int index) {
    const ToothPlan plan{header_->number(), header_->date(), readOnly_};
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

void frmEditTrattamento::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_F3:
        pressButton(0);
        return;
    case Qt::Key_F4:
        pressButton(1);
        return;
    case Qt::Key_F5:
        pressButton(2);
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void frmEditTrattamento::pressButton(int index) {
    if (tabs_->currentWidget() == rows_)
        rows_->press(static_cast<TreatmentRows::Command>(index));
    else
        links_->pressNotes(index);
}

// ------------------------------------------------------------------------------------------------------------ saving

void frmEditTrattamento::confirm() {
    bool saved = false;
    try {
        rows_->endEdit();
        saved = check() && save();
    } catch (const std::exception& error) {
        message(QStringLiteral("Attenzione! Riscontrati errori in salvataggio dati trattamento!") + LINE_END +
                    QStringLiteral("Errore: ") + QString::fromUtf8(error.what()),
                platform::MB_WARNING);
    }
    if (saved) closeConfirmed();
}

bool frmEditTrattamento::check() {
    const auto missing = header_->check();
    if (!missing) return true;
    message(missing->message, platform::MB_WARNING);
    missing->field->setFocus();
    return false;
}

clsItemTrattamento frmEditTrattamento::compose() {
    clsItemTrattamento item;
    item.ID = id_;
    header_->write(item);
    links_->write(item);
    item.SituazioneOrale = teeth_->mouthSituation();
    for (clsItemRigoTrattamento row : rows_->rows()) {
        row.kanno = item.anno;
        row.kprogressivo = item.progressivo;
        item.righi.add(row.progressivo, row);
    }
    return item;
}

bool frmEditTrattamento::save() {
    clsItemTrattamento item = compose();
    if (!(id_.isEmpty() ? oTrattamenti->saveNew(item) : oTrattamenti->Salva(item))) {
        const platform::Answer review = message(
            QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?"), platform::MB_QUESTION);
        if (review != platform::Answer::Yes) reject();
        return false;
    }
    id_ = item.ID;
    header_->setProgressive(item.progressivo); // the next one, when another workstation has taken its own meanwhile
    return true;
}

// The plan is stored: what fails from here on concerns who shows it, and keeps nobody from the rest.
void frmEditTrattamento::closeConfirmed() {
    step([] {
        if (host::Paziente* patient = currentPatient()) patient->GeneraEvento(patient->corvala());
    });
    releaseLock();
    oTrattamenti->Refresh();
    step([] {
        if (oHost) oHost->Framework().setDialogCancel(false);
    });
    announceChange(oTrattamenti->t1(), id_);
    deliverChanges();
    done(QDialog::Accepted);
}

// ----------------------------------------------------------------------------------------------------------- closing

void frmEditTrattamento::cancel() {
    if (id_.isEmpty() && links_->hasLinks()) {
        const platform::Answer sure = message(
            QStringLiteral("Nota Bene: Sono stati collegati degli allegati e/o aggiunti degli scarichi di magazzino!") +
                LINE_END + QStringLiteral("Attenzione! Vuoi davvero non salvare le modifiche?"),
            platform::MB_QUESTION_DEFAULT_NO);
        if (sure != platform::Answer::Yes) return;
    }
    reject();
}

void frmEditTrattamento::reject() {
    if (oHost) oHost->Framework().setDialogCancel(true); // the module may have ended under the open window
    done(QDialog::Rejected);
}

void frmEditTrattamento::done(int result) {
    releaseLock();
    QDialog::done(result);
}

void frmEditTrattamento::releaseLock() {
    const QString tag = cbAnnulla_->property(TAG).toString();
    if (tag.isEmpty() || !oConfig) return; // the folder of the locks went with the module
    cbAnnulla_->setProperty(TAG, QString());
    RimuoviLock(LOCK, tag);
}
