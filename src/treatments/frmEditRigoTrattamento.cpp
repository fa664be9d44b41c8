#include "treatments/frmEditRigoTrattamento.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/ToothList.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modConversioni.h"
#include "store/modUtenti.h"
#include "treatments/PannelloStadio.h"
#include "treatments/RigoInGriglia.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int MEDICO = 0;
constexpr int ASSISTENTE_UTENTE = 3;
const char* const TAG = "Tag";
const QLatin1Char DOMANDA('?');

QString importo(double valore) {
    return platform::regional().format(static_cast<float>(valore), QStringLiteral("###0.00"));
}

} // namespace

frmEditRigoTrattamento::frmEditRigoTrattamento(QWidget* parent)
    : QDialog(parent)
    , tmCavolo_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmEditRigoTrattamento"));
    setWindowTitle(TitoloForm(QStringLiteral("Dettaglio Trattamento")));
    tmCavolo_->setObjectName(QStringLiteral("tmCavolo"));
    tmCavolo_->setSingleShot(true);
    tmCavolo_->setInterval(0);
    costruisciCampi();
    disponi();
    collega();
    mostraDate();
    InizializzaForm(this);
    ConservaGeometria(this);
}

// The field that loses the keyboard with the window has its say while the window is whole.
frmEditRigoTrattamento::~frmEditRigoTrattamento() {
    hide();
}

void frmEditRigoTrattamento::collega() {
    connect(cbAccetta_, &QPushButton::clicked, this, &frmEditRigoTrattamento::accetta);
    connect(cbAnnulla_, &QPushButton::clicked, this, &frmEditRigoTrattamento::reject);
    connect(cerca_[CERCA_SERVIZIO], &QPushButton::clicked, this, &frmEditRigoTrattamento::cercaServizio);
    connect(cerca_[CERCA_DENTE], &QPushButton::clicked, this, &frmEditRigoTrattamento::scegliDenti);
    connect(cerca_[CERCA_OPERATORE], &QPushButton::clicked, this, [this] { scegliUtente(MEDICO, tbDati_[OPERATORE]); });
    connect(cerca_[CERCA_ASSISTENTE], &QPushButton::clicked, this,
            [this] { scegliUtente(ASSISTENTE_UTENTE, tbDati_[ASSISTENTE]); });
    connect(tbDati_[SERVIZIO], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::servizioCambiato);
    for (QLineEdit* campo : {tbDati_[SERVIZIO], tbDati_[DESCRIZIONE]}) {
        connect(campo, &QLineEdit::textEdited, this, [this](const QString& testo) {
            if (testo.contains(DOMANDA)) tmCavolo_->start();
        });
    }
    connect(tmCavolo_, &QTimer::timeout, this, [this] {
        for (QLineEdit* campo : {tbDati_[SERVIZIO], tbDati_[DESCRIZIONE]})
            campo->setText(campo->text().replace(DOMANDA, QLatin1Char(' ')).trimmed());
        cercaServizio();
    });
    connect(tbDati_[DENTI], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::aggiornaTotale);
    connect(tbTotali_[0], &QLineEdit::textChanged, this, &frmEditRigoTrattamento::aggiornaTotale);
    connect(tbDati_[SERVIZIO], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::servizioScritto);
    connect(tbDati_[DENTI], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::dentiScritti);
    connect(tbTotali_[0], &QLineEdit::editingFinished, this, &frmEditRigoTrattamento::prezzoScritto);
    connect(cbDate_[0], &QCheckBox::toggled, this, [this](bool iniziato) {
        if (!iniziato) cbDate_[1]->setChecked(false); // no end without a start
        mostraDate();
    });
    connect(cbDate_[1], &QCheckBox::toggled, this, &frmEditRigoTrattamento::mostraDate);
}

// ---------------------------------------------------------------------------------------------- the row in and out

void frmEditRigoTrattamento::carica(const clsItemRigoTrattamento& rigo) {
    servizio_ = CodiceServizio(rigo.servizio);
    fatturato_ = !rigo.fattura.isEmpty();
    laProgressivo_->setText(rigo.progressivo);
    tbDati_[SERVIZIO]->setText(rigo.servizio);
    tbDati_[DESCRIZIONE]->setText(rigo.descrizione);
    tbDati_[OPERATORE]->setText(DescrizioneUtente(rigo.operatore));
    tbDati_[OPERATORE]->setProperty(TAG, rigo.operatore);
    tbDati_[ASSISTENTE]->setText(DescrizioneUtente(rigo.assistente));
    tbDati_[ASSISTENTE]->setProperty(TAG, rigo.assistente);
    tbDati_[DENTI]->setText(ToothList::fromRecord(rigo.dente, rigo.denti).selection());
    dentiScritti();
    tbNote_->setPlainText(rigo.note);
    CaricaComboRaggrMerc(cbRaggrMerc_, rigo.raggruppamento);
    tbTotali_[0]->setText(importo(static_cast<double>(rigo.prezzo)));
    prezzoScritto();
    cbFuoriPreventivo_->setChecked(rigo.fuoripreventivo);
    caricaDate(rigo);
    servizioCambiato();
    avvisaServizio();
    const QList<StadioLavoro> stadi = stadilavoro::leggi(rigo.statuslavori);
    for (std::size_t i = 0; i < pbStatus_.size() && static_cast<qsizetype>(i) < stadi.size(); ++i)
        pbStatus_[i]->setDate(stadi[static_cast<qsizetype>(i)]);
    aggiornaTotale();
}

void frmEditRigoTrattamento::caricaDate(const clsItemRigoTrattamento& rigo) {
    const std::array<QString, 2> date{rigo.inizio, rigo.fine};
    for (std::size_t i = 0; i < date.size(); ++i) {
        const auto giorno = platform::regional().toDate(date[i]);
        if (giorno) dtpData_[i]->setDate(*giorno);
        cbDate_[i]->setChecked(giorno.has_value());
    }
    mostraDate();
}

void frmEditRigoTrattamento::scrivi(clsItemRigoTrattamento& rigo) const {
    const auto giorno = [this](std::size_t i) {
        return cbDate_[i]->isChecked() ? platform::regional().shortDate(dtpData_[i]->date()) : QString();
    };
    const QString scritto = tbDati_[SERVIZIO]->text();
    const QString codice = CodiceServizio(scritto);
    rigo.servizio = codice.isEmpty() ? scritto : codice;
    rigo.descrizione = tbDati_[DESCRIZIONE]->text();
    rigo.operatore = tbDati_[OPERATORE]->property(TAG).toString();
    rigo.assistente = tbDati_[ASSISTENTE]->property(TAG).toString();
    const ToothList denti = ToothList::fromTyped(tbDati_[DENTI]->text()).value_or(ToothList());
    rigo.dente = denti.dente();
    rigo.denti = denti.denti();
    rigo.note = tbNote_->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    // A group that the practice has since struck off its list is no line here, and stays with the row.
    if (cbRaggrMerc_->currentIndex() >= 0)
        rigo.raggruppamento = cbRaggrMerc_->currentText().section(QLatin1Char(' '), 0, 0);
    rigo.prezzo = CastSingle(tbTotali_[0]->text());
    rigo.fuoripreventivo = cbFuoriPreventivo_->isChecked();
    rigo.inizio = giorno(0);
    rigo.fine = giorno(1);
    QList<StadioLavoro> stadi;
    for (const PannelloStadio* stadio : pbStatus_) {
        if (stadio->inUso()) stadi << stadio->stadio();
    }
    rigo.statuslavori = stadilavoro::scrivi(stadi);
}

void frmEditRigoTrattamento::setSolaLettura() {
    cbAccetta_->setEnabled(false);
    cbAnnulla_->setText(QStringLiteral("Chiudi"));
}

bool frmEditRigoTrattamento::accettato() const {
    return laOUTB_->text() == QLatin1String("OK");
}

void frmEditRigoTrattamento::accetta() {
    servizioScritto();
    laOUTB_->setText(QStringLiteral("OK"));
    done(QDialog::Accepted);
}

void frmEditRigoTrattamento::reject() {
    laOUTB_->clear();
    done(QDialog::Rejected);
}

// --------------------------------------------------------------------------------------- what follows from a change

void frmEditRigoTrattamento::servizioCambiato() {
    // The dates of the old service's stages go with it, on purpose.
    for (PannelloStadio* stadio : pbStatus_)
        stadio->libera();
    const QStringList nomi = stadilavoro::nomi(StatusLavoriServizio(tbDati_[SERVIZIO]->text()));
    for (qsizetype i = 0; i < nomi.size(); ++i)
        pbStatus_[static_cast<std::size_t>(i)]->usa(nomi[i]);
    areaStadi_->setVisible(!nomi.isEmpty());
    const float listino = fatturato_ ? 0.0F : PrezzoServizio(tbDati_[SERVIZIO]->text());
    tbTotali_[0]->setPlaceholderText(importo(static_cast<double>(listino)));
    aggiornaTotale();
}

void frmEditRigoTrattamento::servizioScritto() {
    const QString codice = CodiceServizio(tbDati_[SERVIZIO]->text());
    if (!codice.isEmpty()) {
        const QSignalBlocker stessoServizio(tbDati_[SERVIZIO]); // in other letters, and its stages stay
        tbDati_[SERVIZIO]->setText(codice);
    }
    avvisaServizio();
    if (codice.isEmpty() || codice == servizio_) return;
    if (fatturato_)
        servizio_ = codice;
    else
        applicaServizio();
}

void frmEditRigoTrattamento::avvisaServizio() {
    const QString scritto = tbDati_[SERVIZIO]->text();
    const bool ignoto = !scritto.isEmpty() && CodiceServizio(scritto).isEmpty();
    platform::form::setNotice(tbDati_[SERVIZIO], ignoto ? platform::Notice::Warning : platform::Notice::None,
                              ignoto ? QStringLiteral("Il servizio non è nel catalogo") : QString());
}

void frmEditRigoTrattamento::dentiScritti() {
    const QString scritto = tbDati_[DENTI]->text();
    const auto letti = ToothList::fromTyped(scritto);
    if (letti && letti->selection() != scritto) tbDati_[DENTI]->setText(letti->selection());
    const QString avviso = rigogriglia::avvisoDenti(letti.value_or(ToothList()), scritto.trimmed());
    platform::form::setNotice(tbDati_[DENTI], avviso.isEmpty() ? platform::Notice::None : platform::Notice::Error,
                              avviso);
}

void frmEditRigoTrattamento::prezzoScritto() {
    const QString scritto = tbTotali_[0]->text();
    const bool importoLetto = scritto.isEmpty() || platform::regional().toNumber(scritto);
    // A row without a price of its own has the catalogue's, which then shows through.
    if (importoLetto && !fatturato_ && CastSingle(scritto) == 0.0F) tbTotali_[0]->clear();
    platform::form::setNotice(tbTotali_[0], importoLetto ? platform::Notice::None : platform::Notice::Error,
                              importoLetto ? QString() : QStringLiteral("Non è un importo: non verrà memorizzato"));
}

void frmEditRigoTrattamento::cercaServizio() {
    QString codice = tbDati_[SERVIZIO]->text();
    QString descrizione = tbDati_[DESCRIZIONE]->text();
    if (!ScegliServizio(true, codice, descrizione)) return;
    tbDati_[SERVIZIO]->setText(codice);
    tbDati_[DESCRIZIONE]->setText(descrizione);
    applicaServizio();
}

void frmEditRigoTrattamento::applicaServizio() {
    const QString codice = tbDati_[SERVIZIO]->text();
    servizio_ = CodiceServizio(codice);
    avvisaServizio();
    tbTotali_[0]->setText(importo(static_cast<double>(PrezzoServizio(codice))));
    const clsItemServizio* servizio = oServizi->Carica(codice);
    if (servizio && tbDati_[DESCRIZIONE]->text().trimmed().isEmpty())
        tbDati_[DESCRIZIONE]->setText(servizio->descrizione);
    CaricaComboRaggrMerc(cbRaggrMerc_, RaggruppamentoServizio(codice));
    prezzoScritto();
}

void frmEditRigoTrattamento::scegliDenti() {
    QString selezione = tbDati_[DENTI]->text();
    qint16 quanti = 0;
    if (!ScegliDenti(selezione, quanti)) return;
    tbDati_[DENTI]->setText(selezione);
    dentiScritti();
}

// miOperatori and miAssistenti: one entry per user of that kind who is still in the practice.
void frmEditRigoTrattamento::scegliUtente(int tipo, QLineEdit* campo) {
    QList<platform::MenuEntry> voci;
    QStringList codici;
    for (const host::VoceUtente& utente : UtentiDaScegliere(tipo)) {
        voci << platform::MenuEntry{NomeUtente(utente), true};
        codici << utente.codicefiscale;
    }
    const int scelta = platform::dialogs().popup(voci);
    if (scelta < 0 || scelta >= codici.size()) return;
    campo->setText(voci[scelta].caption);
    campo->setProperty(TAG, codici[scelta]);
}

void frmEditRigoTrattamento::aggiornaTotale() {
    const int quanti = ToothList::fromTyped(tbDati_[DENTI]->text()).value_or(ToothList()).factor();
    tbTotali_[1]->setText(importo(static_cast<double>(prezzo()) * quanti));
}

float frmEditRigoTrattamento::prezzo() const {
    const float proprio = CastSingle(tbTotali_[0]->text());
    return proprio == 0.0F && !fatturato_ ? PrezzoServizio(tbDati_[SERVIZIO]->text()) : proprio;
}

void frmEditRigoTrattamento::mostraDate() {
    const bool iniziato = cbDate_[0]->isChecked();
    dtpData_[0]->setVisible(iniziato);
    cbDate_[1]->setVisible(iniziato);
    dtpData_[1]->setVisible(cbDate_[1]->isChecked());
}

bool frmEditRigoTrattamento::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tbNote_->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        tbNote_->setReadOnly(!tbNote_->isReadOnly());
        QPalette colori = palette();
        if (tbNote_->isReadOnly()) colori.setColor(QPalette::Base, colori.color(QPalette::Window));
        tbNote_->setPalette(colori);
        return true;
    }
    // In the note, which has lines, Enter writes one, on purpose; Tab leaves it.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            platform::form::focusNextField(static_cast<QWidget*>(watched));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool ModificaRigoTrattamento(clsItemRigoTrattamento& rigo, bool solaLettura, QWidget* parent) {
    frmEditRigoTrattamento editor(parent);
    editor.carica(rigo);
    if (solaLettura) editor.setSolaLettura();
    editor.exec();
    if (!editor.accettato()) return false;
    editor.scrivi(rigo);
    return true;
}
