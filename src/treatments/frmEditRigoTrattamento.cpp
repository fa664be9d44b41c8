#include "treatments/frmEditRigoTrattamento.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/modDenti.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modForm.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "store/modConversioni.h"
#include "store/modUtenti.h"
#include "treatments/PannelloStadio.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

enum Campo { SERVIZIO = 0, DESCRIZIONE = 2, OPERATORE = 3, ASSISTENTE = 4, DENTI = 5 };
enum Ricerca { CERCA_SERVIZIO, CERCA_OPERATORE, CERCA_ASSISTENTE, CERCA_DENTE };

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
}

void frmEditRigoTrattamento::costruisciCampi() {
    using namespace platform::form;
    laProgressivo_ = heading(QStringLiteral("laProgressivo"), QString(), this);
    for (const int indice : {SERVIZIO, DESCRIZIONE, OPERATORE, ASSISTENTE, DENTI}) {
        tbDati_[static_cast<std::size_t>(indice)] = textBox(arrayName("tbDati", indice), this);
    }
    tbDati_[OPERATORE]->setReadOnly(true); // chosen from the users, never typed
    tbDati_[ASSISTENTE]->setReadOnly(true);
    const std::array<QString, 4> nomi{QStringLiteral("cbFndArt"), QStringLiteral("cbFndOperatore"),
                                      QStringLiteral("cbFndAssistente"), QStringLiteral("cbFndDente")};
    for (std::size_t i = 0; i < cerca_.size(); ++i) {
        cerca_[i] = button(nomi[i], QStringLiteral("..."), this);
        cerca_[i]->setAutoDefault(false);
        cerca_[i]->setFixedWidth(34);
    }
    for (std::size_t i = 0; i < tbTotali_.size(); ++i) {
        tbTotali_[i] = textBox(arrayName("tbTotali", static_cast<int>(i)), this);
        tbTotali_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        tbTotali_[i]->setFixedWidth(110);
    }
    tbTotali_[1]->setReadOnly(true);
    tbTotali_[1]->setFocusPolicy(Qt::NoFocus);
    cbRaggrMerc_ = named(new QComboBox(this), QStringLiteral("cbRaggrMerc"));
    const std::array<QString, 2> lavori{QStringLiteral("Lavori Iniziati"), QStringLiteral("Lavori Terminati")};
    for (std::size_t i = 0; i < cbDate_.size(); ++i) {
        const int indice = static_cast<int>(i);
        cbDate_[i] = named(new QCheckBox(lavori[i], this), arrayName("cbDate", indice));
        dtpData_[i] = dateBox(arrayName("dtpData", indice), this);
        dtpData_[i]->setDate(platform::today());
    }
    cbFuoriPreventivo_ =
        named(new QCheckBox(QStringLiteral("Fuori PREVENTIVO"), this), QStringLiteral("cbFuoriPreventivo"));
    for (std::size_t i = 0; i < pbStatus_.size(); ++i)
        pbStatus_[i] = new PannelloStadio(static_cast<int>(i), this);
    tbNote_ = named(new QPlainTextEdit(this), arrayName("tbDati", 6));
    tbNote_->setTabChangesFocus(true);
    laOUTB_ = named(new QLabel(this), QStringLiteral("laOUTB"));
    laOUTB_->hide();
    cbAccetta_ = button(QStringLiteral("cbAccetta"), QStringLiteral("Accetta"), this);
    cbAnnulla_ = button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbAccetta_->setAutoDefault(false);
    cbAnnulla_->setAutoDefault(false);
    // Only now, when every field is there: the filter sees the set-up too.
    for (QLineEdit* campo : tbDati_) {
        if (campo) campo->installEventFilter(this);
    }
    tbNote_->viewport()->installEventFilter(this);
}

void frmEditRigoTrattamento::disponi() {
    using platform::form::labelledRow;
    const auto conRicerca = [this](int campo, Ricerca ricerca) {
        auto* scatola = new QWidget(this);
        auto* riga = new QHBoxLayout(scatola);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->addWidget(tbDati_[static_cast<std::size_t>(campo)], 1);
        riga->addWidget(cerca_[ricerca]);
        scatola->setFocusProxy(tbDati_[static_cast<std::size_t>(campo)]);
        return scatola;
    };
    auto* prezzi = new QWidget(this);
    auto* rigaPrezzi = new QHBoxLayout(prezzi);
    rigaPrezzi->setContentsMargins(0, 0, 0, 0);
    rigaPrezzi->addWidget(tbTotali_[0]);
    rigaPrezzi->addSpacing(16);
    auto* totale = new QLabel(QStringLiteral("Totale:"), prezzi);
    totale->setBuddy(tbTotali_[1]);
    rigaPrezzi->addWidget(totale);
    rigaPrezzi->addWidget(tbTotali_[1]);
    rigaPrezzi->addStretch(1);
    prezzi->setFocusProxy(tbTotali_[0]);

    auto* grid = new QGridLayout;
    labelledRow(grid, 0, 0, QStringLiteral("Servizio:"), conRicerca(SERVIZIO, CERCA_SERVIZIO));
    labelledRow(grid, 1, 0, QStringLiteral("Descrizione:"), tbDati_[DESCRIZIONE]);
    labelledRow(grid, 2, 0, QStringLiteral("Denti:"), conRicerca(DENTI, CERCA_DENTE));
    labelledRow(grid, 3, 0, QStringLiteral("Raggruppamento:"), cbRaggrMerc_);
    labelledRow(grid, 4, 0, QStringLiteral("Operatore:"), conRicerca(OPERATORE, CERCA_OPERATORE));
    labelledRow(grid, 5, 0, QStringLiteral("Assistente:"), conRicerca(ASSISTENTE, CERCA_ASSISTENTE));
    labelledRow(grid, 6, 0, QStringLiteral("Prezzo unitario:"), prezzi);
    grid->setColumnStretch(1, 1);

    QGroupBox* note = platform::form::titledArea(QStringLiteral("Note"), this);
    auto* colonnaNote = new QVBoxLayout(note);
    colonnaNote->addWidget(tbNote_);
    tbNote_->setMinimumHeight(70);

    auto* piede = platform::form::buttonRow({cbAccetta_, cbAnnulla_});
    auto* colonna = new QVBoxLayout(this);
    auto* titolo = new QHBoxLayout;
    titolo->addWidget(platform::form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("RIGO"), this));
    titolo->addWidget(laProgressivo_);
    titolo->addStretch(1);
    colonna->addLayout(titolo);
    colonna->addLayout(grid);
    colonna->addWidget(areaLavori());
    colonna->addWidget(areaStadi());
    colonna->addWidget(note, 1);
    colonna->addLayout(piede);
    resize(640, 640);
    ordinaCampi();
}

void frmEditRigoTrattamento::ordinaCampi() {
    const QList<QWidget*> ordine{tbDati_[SERVIZIO],    cerca_[CERCA_SERVIZIO],
                                 tbDati_[DESCRIZIONE], tbDati_[DENTI],
                                 cerca_[CERCA_DENTE],  cbRaggrMerc_,
                                 tbDati_[OPERATORE],   cerca_[CERCA_OPERATORE],
                                 tbDati_[ASSISTENTE],  cerca_[CERCA_ASSISTENTE],
                                 tbTotali_[0],         cbDate_[0],
                                 dtpData_[0],          cbDate_[1],
                                 dtpData_[1],          cbFuoriPreventivo_};
    for (qsizetype i = 1; i < ordine.size(); ++i)
        setTabOrder(ordine[i - 1], ordine[i]);
    QWidget* precedente = cbFuoriPreventivo_;
    for (PannelloStadio* stadio : pbStatus_) {
        for (QWidget* campo : stadio->campi()) {
            setTabOrder(precedente, campo);
            precedente = campo;
        }
    }
    for (QWidget* campo :
         {static_cast<QWidget*>(tbNote_), static_cast<QWidget*>(cbAccetta_), static_cast<QWidget*>(cbAnnulla_)}) {
        setTabOrder(precedente, campo);
        precedente = campo;
    }
    tbDati_[SERVIZIO]->setFocus();
}

QGroupBox* frmEditRigoTrattamento::areaLavori() {
    QGroupBox* area = platform::form::titledArea(QStringLiteral("Lavori"), this);
    auto* riga = new QHBoxLayout(area);
    for (std::size_t i = 0; i < cbDate_.size(); ++i) {
        riga->addWidget(cbDate_[i]);
        riga->addWidget(dtpData_[i]);
    }
    riga->addStretch(1);
    riga->addWidget(cbFuoriPreventivo_);
    area->setMinimumHeight(area->sizeHint().height()); // the dates come and go
    return area;
}

QGroupBox* frmEditRigoTrattamento::areaStadi() {
    areaStadi_ = platform::form::titledArea(QStringLiteral("Status intermedi"), this);
    auto* colonna = new QVBoxLayout(areaStadi_);
    for (PannelloStadio* stadio : pbStatus_)
        colonna->addWidget(stadio);
    areaStadi_->hide();
    return areaStadi_;
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
    connect(cbDate_[0], &QCheckBox::toggled, this, [this](bool iniziato) {
        if (!iniziato) cbDate_[1]->setChecked(false); // no end without a start
        mostraDate();
    });
    connect(cbDate_[1], &QCheckBox::toggled, this, &frmEditRigoTrattamento::mostraDate);
}

// ---------------------------------------------------------------------------------------------- the row in and out

void frmEditRigoTrattamento::carica(const clsItemRigoTrattamento& rigo) {
    laProgressivo_->setText(rigo.progressivo);
    tbDati_[SERVIZIO]->setText(rigo.servizio);
    tbDati_[DESCRIZIONE]->setText(rigo.descrizione);
    tbDati_[OPERATORE]->setText(DescrizioneUtente(rigo.operatore));
    tbDati_[OPERATORE]->setProperty(TAG, rigo.operatore);
    tbDati_[ASSISTENTE]->setText(DescrizioneUtente(rigo.assistente));
    tbDati_[ASSISTENTE]->setProperty(TAG, rigo.assistente);
    tbDati_[DENTI]->setText(SelezioneDaMemoria(rigo.dente, rigo.denti));
    tbNote_->setPlainText(rigo.note);
    CaricaComboRaggrMerc(cbRaggrMerc_, rigo.raggruppamento);
    tbTotali_[0]->setText(importo(static_cast<double>(rigo.prezzo)));
    cbFuoriPreventivo_->setChecked(rigo.fuoripreventivo);
    caricaDate(rigo);
    servizioCambiato();
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
    rigo.servizio = tbDati_[SERVIZIO]->text();
    rigo.descrizione = tbDati_[DESCRIZIONE]->text();
    rigo.operatore = tbDati_[OPERATORE]->property(TAG).toString();
    rigo.assistente = tbDati_[ASSISTENTE]->property(TAG).toString();
    const DentiMemorizzati denti = DentiDaMemorizzare(tbDati_[DENTI]->text().trimmed());
    rigo.dente = denti.dente;
    rigo.denti = denti.denti;
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
    tbTotali_[0]->setText(importo(static_cast<double>(PrezzoServizio(codice))));
    const clsItemServizio* servizio = oServizi->Carica(codice);
    if (servizio && tbDati_[DESCRIZIONE]->text().trimmed().isEmpty())
        tbDati_[DESCRIZIONE]->setText(servizio->descrizione);
    CaricaComboRaggrMerc(cbRaggrMerc_, RaggruppamentoServizio(codice));
}

void frmEditRigoTrattamento::scegliDenti() {
    QString selezione = tbDati_[DENTI]->text();
    qint16 quanti = 0;
    if (ScegliDenti(selezione, quanti)) tbDati_[DENTI]->setText(selezione);
}

// miOperatori and miAssistenti: one entry per user of that kind.
void frmEditRigoTrattamento::scegliUtente(int tipo, QLineEdit* campo) {
    QList<platform::MenuEntry> voci;
    QStringList codici;
    for (const host::VoceUtente& utente : oHost->Archivio().Utenti().Lista()) {
        if (utente.tipo != tipo) continue;
        voci << platform::MenuEntry{DescrizioneUtente(utente.codicefiscale), true};
        codici << utente.codicefiscale;
    }
    const int scelta = platform::dialogs().popup(voci);
    if (scelta < 0 || scelta >= codici.size()) return;
    campo->setText(voci[scelta].caption);
    campo->setProperty(TAG, codici[scelta]);
}

void frmEditRigoTrattamento::aggiornaTotale() {
    const QString denti = tbDati_[DENTI]->text();
    const int quanti = denti.startsWith(QLatin1Char('+')) ? static_cast<int>(denti.count(QLatin1Char(';'))) + 1 : 1;
    tbTotali_[1]->setText(importo(static_cast<double>(CastSingle(tbTotali_[0]->text())) * quanti));
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
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextChild();
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
