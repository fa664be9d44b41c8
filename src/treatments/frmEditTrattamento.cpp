#include "treatments/frmEditTrattamento.h"

#include "config/clsConfig.h"
#include "host/Passo.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modAggiorna.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "store/modLock.h"
#include "treatments/CollegamentiTrattamento.h"
#include "treatments/PannelloDenti.h"
#include "treatments/RigheTrattamento.h"
#include "treatments/TestataTrattamento.h"
#include "treatments/TotaliTrattamento.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/clsViewTrattamenti.h"
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
const QString A_CAPO = QStringLiteral("\r\n");

platform::Answer messaggio(const QString& testo, int valore) {
    return platform::dialogs().message(testo, valore, QString::fromUtf16(TITOLO_CORVALA));
}

} // namespace

frmEditTrattamento::frmEditTrattamento(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmEditTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Gestione Trattamento")));
    costruisci();
    collega();
    InizializzaForm(this);
    ConservaGeometria(this);
    leggi();
    if (oHost) oHost->Framework().setDialogCancel(true);
}

frmEditTrattamento::~frmEditTrattamento() {
    liberaLock();
}

void frmEditTrattamento::costruisci() {
    namespace form = platform::form;
    // In the order in which Tab comes by.
    testata_ = new TestataTrattamento(this);
    denti_ = new PannelloDenti(this);
    schede_ = form::named(new QTabWidget(this), QStringLiteral("tcDettaglio"));
    righe_ = new RigheTrattamento(this);
    collegamenti_ = new CollegamentiTrattamento(this);
    totali_ = new TotaliTrattamento(this);
    schede_->addTab(righe_, QStringLiteral("Dettaglio Lavori e Servizi"));
    collegamenti_->aggiungiPagine(*schede_);

    cbFattura_ = form::button(QStringLiteral("cbFattura"), QStringLiteral("Fatture..."), this);
    cbPreventivo_ = form::button(QStringLiteral("cbPreventivo"), QStringLiteral("Da preventivo..."), this);
    cbConferma_ = form::button(QStringLiteral("cbConferma"), QStringLiteral("Conferma"), this);
    cbAnnulla_ = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbAnnulla_->setProperty(TAG, QString());
    // Enter belongs to the fields and to the grid.
    for (QPushButton* bottone : {cbFattura_, cbPreventivo_, cbConferma_, cbAnnulla_})
        bottone->setAutoDefault(false);
    // Invoices and estimates are not there yet.
    cbFattura_->setEnabled(false);
    cbPreventivo_->setEnabled(false);

    auto* piede = new QHBoxLayout;
    piede->addWidget(cbFattura_);
    piede->addWidget(cbPreventivo_);
    piede->addStretch(1);
    piede->addWidget(totali_);
    piede->addSpacing(16);
    piede->addWidget(cbConferma_);
    piede->addWidget(cbAnnulla_);

    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(testata_);
    colonna->addWidget(denti_);
    colonna->addWidget(schede_, 1);
    colonna->addLayout(piede);
    resizeToScreen(this, QSize(1280, 760));
}

void frmEditTrattamento::collega() {
    connect(cbConferma_, &QPushButton::clicked, this, &frmEditTrattamento::conferma);
    connect(cbAnnulla_, &QPushButton::clicked, this, &frmEditTrattamento::annulla);
    connect(righe_, &RigheTrattamento::cambiati, this, &frmEditTrattamento::aggiornaDisegno);
    connect(righe_, &RigheTrattamento::rigoScelto, denti_, &PannelloDenti::plbSelezionaTooh);
    connect(denti_, &PannelloDenti::denteScelto, righe_, &RigheTrattamento::evidenzia);
    connect(denti_, &PannelloDenti::servizioScelto, this,
            [this](const QString& servizio) { denti_->plbSelezionaTooh(righe_->dentiDelServizio(servizio)); });
    connect(denti_, &PannelloDenti::informazioniChieste, this, &frmEditTrattamento::apriDente);
    connect(righe_, &RigheTrattamento::zoomChiesto, this, &frmEditTrattamento::apriZoom);
    connect(testata_, &TestataTrattamento::fatturaAnticipoCambiata, this, [this] {
        righe_->setFatturaAnticipo(testata_->fatturaAnticipoScritta());
        totali_->aggiornaFatturazione();
    });
}

// ----------------------------------------------------------------------------------------------------------- opening

void frmEditTrattamento::leggi() {
    id_ = sIDTrattamento;
    try {
        if (id_.isEmpty()) {
            testata_->prepara();
            denti_->caricaSituazione(QString());
        } else {
            caricaTrattamento();
        }
        aggiornaDisegno();
        totali_->aggiornaFatturazione();
    } catch (const std::exception& errore) {
        nonLetto(QString::fromUtf8(errore.what()));
    }
}

// What was read only in part must not be saved over the whole.
void frmEditTrattamento::nonLetto(const QString& perche) {
    liberaLock();
    setSolaLettura();
    messaggio(QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!") + A_CAPO +
                  QStringLiteral("Errore: ") + perche,
              platform::MB_WARNING);
}

void frmEditTrattamento::caricaTrattamento() {
    // Marked before it is read: what others saved until then is in it.
    const bool nostro = CreaLock(LOCK, id_);
    if (nostro) cbAnnulla_->setProperty(TAG, id_);
    const auto item = oTrattamenti->salvage(id_);
    if (!item) { // the window stays empty, without a word
        liberaLock();
        return;
    }
    if (!nostro) {
        setSolaLettura();
        messaggio(QStringLiteral("Attenzione! Trattamento in uso ad altro utente!") + A_CAPO +
                      QStringLiteral("Eventuali modifiche verranno tralasciate!"),
                  platform::MB_WARNING);
    }
    testata_->carica(*item);
    collegamenti_->carica(*item);
    denti_->caricaSituazione(item->SituazioneOrale);
    righe_->carica(*item);
    if (!item->guasto.isEmpty()) nonLetto(item->guasto);
}

void frmEditTrattamento::setSolaLettura() {
    solaLettura_ = true;
    cbConferma_->setEnabled(false);
    cbAnnulla_->setText(QStringLiteral("Chiudi"));
    cbFattura_->setEnabled(false);
    righe_->setSolaLettura();
    denti_->setSolaLettura();
    collegamenti_->setSolaLettura();
}

int frmEditTrattamento::exec() {
    const QString numero = std::exchange(sRigoTrattamento, QString());
    if (!righe_->haRigo(numero) || id_.isEmpty() || solaLettura_) return QDialog::exec();
    constexpr int ANCORA_APERTA = -1;
    setResult(ANCORA_APERTA);
    attivata_ = true;
    const bool accettato = righe_->apriRigo(numero);
    accettato ? conferma() : annulla();
    // Who chose to look the data over again, after a save that failed, gets the plan to see.
    return result() == ANCORA_APERTA ? QDialog::exec() : result();
}

void frmEditTrattamento::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (std::exchange(attivata_, true)) return;
    primaAttivazione();
}

void frmEditTrattamento::primaAttivazione() {
    if (id_.isEmpty() && oConfig && oConfig->AutomaticoRigoVuoto()) righe_->arma(RigheTrattamento::NUOVO);
}

void frmEditTrattamento::apriDente(int indice) {
    const PianoDelDente piano{testata_->anno(), testata_->progressivo(), testata_->data(), solaLettura_};
    QString voce = denti_->voce(indice);
    if (ScegliSituazioneDente(piano, indice, denti_->dente(indice), voce, this)) denti_->applica(indice, voce);
}

void frmEditTrattamento::apriZoom() {
    frmZoomRighiTrattamento zoom(testata_->anno() + QLatin1Char('-') + testata_->progressivo(), this);
    righe_->copia(zoom);
    connect(&zoom, &frmZoomRighiTrattamento::rigoScelto, denti_, &PannelloDenti::plbSelezionaTooh);
    zoom.exec();
}

void frmEditTrattamento::aggiornaDisegno() {
    denti_->aggiorna(righe_->perIlDisegno());
    totali_->aggiornaLavori(righe_->righi());
}

void frmEditTrattamento::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_F3:
        premiTasto(0);
        return;
    case Qt::Key_F4:
        premiTasto(1);
        return;
    case Qt::Key_F5:
        premiTasto(2);
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void frmEditTrattamento::premiTasto(int indice) {
    if (schede_->currentWidget() == righe_)
        righe_->premi(static_cast<RigheTrattamento::Comando>(indice));
    else
        collegamenti_->premiAppunti(indice);
}

// ------------------------------------------------------------------------------------------------------------ saving

void frmEditTrattamento::conferma() {
    bool salvato = false;
    try {
        righe_->concludiModifica();
        salvato = verifica() && salva();
    } catch (const std::exception& errore) {
        messaggio(QStringLiteral("Attenzione! Riscontrati errori in salvataggio dati trattamento!") + A_CAPO +
                      QStringLiteral("Errore: ") + QString::fromUtf8(errore.what()),
                  platform::MB_WARNING);
    }
    if (salvato) confermato();
}

bool frmEditTrattamento::verifica() {
    const auto mancanza = testata_->verifica();
    if (!mancanza) return true;
    messaggio(mancanza->messaggio, platform::MB_WARNING);
    mancanza->campo->setFocus();
    return false;
}

clsItemTrattamento frmEditTrattamento::componi() {
    clsItemTrattamento item;
    item.ID = id_;
    testata_->scrivi(item);
    collegamenti_->scrivi(item);
    item.SituazioneOrale = denti_->situazioneOrale();
    for (clsItemRigoTrattamento rigo : righe_->righi()) {
        rigo.kanno = item.anno;
        rigo.kprogressivo = item.progressivo;
        item.righi.add(rigo.progressivo, rigo);
    }
    return item;
}

bool frmEditTrattamento::salva() {
    clsItemTrattamento item = componi();
    if (!(id_.isEmpty() ? oTrattamenti->SalvaNuovo(item) : oTrattamenti->Salva(item))) {
        const platform::Answer rivedere = messaggio(
            QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?"), platform::MB_QUESTION);
        if (rivedere != platform::Answer::Yes) reject();
        return false;
    }
    id_ = item.ID;
    testata_->setProgressivo(item.progressivo); // the next one, when another workstation has taken its own meanwhile
    return true;
}

// The plan is stored: what fails from here on concerns who shows it, and keeps nobody from the rest.
void frmEditTrattamento::confermato() {
    passo([] {
        if (host::Paziente* paziente = PazienteAperto()) paziente->GeneraEvento(paziente->corvala());
    });
    liberaLock();
    oTrattamenti->Refresh();
    passo([] {
        if (oConfig) oConfig->RefreshGUITrattamento(); // there may be work going on now, or no more
    });
    passo([] {
        if (oHost) oHost->Framework().setDialogCancel(false);
    });
    passo([this] { RefreshTrattamenti(id_); });
    passo([] { RefreshSintesi(); });
    passo([] {
        const QString pannello = QStringLiteral("Corvala: Lista Trattamenti");
        if (oHost && oViewTrattamenti && oHost->Archivio().Pannelli().PannelloCaricato(pannello))
            oViewTrattamenti->RefreshPannello();
    });
    done(QDialog::Accepted);
}

// ----------------------------------------------------------------------------------------------------------- closing

void frmEditTrattamento::annulla() {
    if (id_.isEmpty() && collegamenti_->haCollegamenti()) {
        const platform::Answer davvero = messaggio(
            QStringLiteral("Nota Bene: Sono stati collegati degli allegati e/o aggiunti degli scarichi di magazzino!") +
                A_CAPO + QStringLiteral("Attenzione! Vuoi davvero non salvare le modifiche?"),
            platform::MB_QUESTION_DEFAULT_NO);
        if (davvero != platform::Answer::Yes) return;
    }
    reject();
}

void frmEditTrattamento::reject() {
    if (oHost) oHost->Framework().setDialogCancel(true); // the module may have ended under the open window
    done(QDialog::Rejected);
}

void frmEditTrattamento::done(int result) {
    liberaLock();
    QDialog::done(result);
}

void frmEditTrattamento::liberaLock() {
    const QString tag = cbAnnulla_->property(TAG).toString();
    if (tag.isEmpty() || !oConfig) return; // the folder of the locks went with the module
    cbAnnulla_->setProperty(TAG, QString());
    RimuoviLock(LOCK, tag);
}
