#include "treatments/RigheTrattamento.h"

#include "config/clsItemRaggMerc.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Collection.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "store/modUtenti.h"
#include "treatments/RigoInGriglia.h"
#include "treatments/clsItemTrattamento.h"
#include "treatments/frmEditRigoTrattamento.h"
#include "treatments/frmZoomRighiTrattamento.h"

#include <QColor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace rigogriglia;

namespace {

constexpr int MEDICO = 0;
constexpr int ASSISTENTE_UTENTE = 3;

// The first entry is empty, so that a choice can be taken back.
QStringList nomiUtenti(int tipo) {
    QStringList nomi{QString()};
    for (const host::VoceUtente& utente : UtentiDaScegliere(tipo))
        nomi << NomeUtente(utente);
    return nomi;
}

QStringList nomiGruppi() {
    QStringList nomi{QString()};
    if (!colRaggMerc) return nomi;
    for (const clsItemRaggMerc& gruppo : *colRaggMerc)
        nomi << gruppo.descrizione;
    return nomi;
}

} // namespace

RigheTrattamento::RigheTrattamento(QWidget* parent)
    : QWidget(parent)
    , tmRighi_(new QTimer(this))
    , tmSetFocusOnRow_(new QTimer(this))
    , gruppi_(nomiGruppi())
    , operatori_(nomiUtenti(MEDICO))
    , assistenti_(nomiUtenti(ASSISTENTE_UTENTE)) {
    namespace form = platform::form;
    rcRighi_ = form::named(new platform::ReportGrid(this), QStringLiteral("rcRighi"));
    costruisciColonne();

    const std::array<QString, 4> didascalie{QStringLiteral("Nuovo (F3)"), QStringLiteral("Modifica (F4)"),
                                            QStringLiteral("Elimina (F5)"), QStringLiteral("Zoom")};
    auto* bottoni = new QHBoxLayout;
    for (std::size_t i = 0; i < cbRighi_.size(); ++i) {
        cbRighi_[i] = form::button(form::arrayName("cbRighi", static_cast<int>(i)), didascalie[i], this);
        cbRighi_[i]->setAutoDefault(false);
        bottoni->addWidget(cbRighi_[i]);
    }
    bottoni->addStretch(1);

    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(4, 4, 4, 4);
    colonna->addWidget(rcRighi_, 1);
    colonna->addLayout(bottoni);

    tmRighi_->setObjectName(QStringLiteral("tmRighi"));
    tmSetFocusOnRow_->setObjectName(QStringLiteral("tmSetFocusOnRow"));
    for (QTimer* timer : {tmRighi_, tmSetFocusOnRow_}) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    collega();
}

void RigheTrattamento::costruisciColonne() {
    for (platform::ReportColumn colonna : colonne()) {
        colonna.editable = rcRighi_->columnCount() != NUMERO;
        rcRighi_->addColumn(colonna);
    }
    rcRighi_->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    rcRighi_->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    rcRighi_->setGroupBoxVisible(false);
    rcRighi_->setSort(-1, Qt::AscendingOrder);
    rcRighi_->setEditMode(true, true);
}

void RigheTrattamento::collega() {
    using platform::ReportGrid;
    for (std::size_t i = 0; i < cbRighi_.size(); ++i) {
        connect(cbRighi_[i], &QPushButton::clicked, this, [this, i] { arma(static_cast<Comando>(i)); });
    }
    connect(tmRighi_, &QTimer::timeout, this, [this] { esegui(comandoArmato_); });
    connect(tmSetFocusOnRow_, &QTimer::timeout, this, &RigheTrattamento::riprendeFuoco);
    connect(rcRighi_, &ReportGrid::valueChanged, this, &RigheTrattamento::cellaCambiata);
    connect(rcRighi_, &ReportGrid::keyPressed, this, &RigheTrattamento::tasto);
    connect(rcRighi_, &ReportGrid::rowDoubleClicked, this, &RigheTrattamento::doppioClic);
    connect(rcRighi_, &ReportGrid::rowRightClicked, this, [this] { mostraMenu(); });
    connect(rcRighi_, &ReportGrid::inplaceButton, this, [this](platform::ReportRecord* record, int colonna) {
        if (colonna == DENTE) scegliDenti(record);
    });
    connect(rcRighi_, &ReportGrid::focusedRecordChanged, this, [this](platform::ReportRecord* record) {
        emit rigoScelto(record ? denti(*record).selection() : QString());
    });
}

// --------------------------------------------------------------------------------------------------------- the rows

void RigheTrattamento::carica(const clsItemTrattamento& item) {
    rcRighi_->beginUpdate();
    rcRighi_->clear();
    for (const clsItemRigoTrattamento& rigo : item.righi)
        aggiungi(rigo);
    rcRighi_->endUpdate();
}

void RigheTrattamento::completaScelte(platform::ReportRecord& record) const {
    const auto offre = [&record](int cella, const QStringList& scelte) {
        record.cell(cella).changeStyle().choices = scelte;
    };
    offre(RAGGRUPPAMENTO, gruppi_);
    offre(OPERATORE, operatori_);
    offre(ASSISTENTE, assistenti_);
}

platform::ReportRecord* RigheTrattamento::aggiungi(const clsItemRigoTrattamento& rigo) {
    platform::ReportRecord* record = rcRighi_->addRecord();
    mostra(rigo, *record);
    completaScelte(*record);
    dipingi(*record);
    return record;
}

QList<clsItemRigoTrattamento> RigheTrattamento::righi() const {
    QList<clsItemRigoTrattamento> righi;
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        righi << leggi(*rcRighi_->record(i), i + 1);
    return righi;
}

QList<RigoGrafico> RigheTrattamento::perIlDisegno() const {
    QList<RigoGrafico> righi;
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        righi << rigogriglia::perIlDisegno(*rcRighi_->record(i));
    return righi;
}

void RigheTrattamento::setSolaLettura() {
    solaLettura_ = true;
    rcRighi_->setReadOnly(true);
    cbRighi_[NUOVO]->setEnabled(false);
    cbRighi_[ELIMINA]->setEnabled(false);
    cbRighi_[MODIFICA]->setText(QStringLiteral("dettagli"));
}

int RigheTrattamento::posizione(const platform::ReportRecord* record) const {
    for (int i = 0; i < rcRighi_->recordCount(); ++i) {
        if (rcRighi_->record(i) == record) return i;
    }
    return -1;
}

void RigheTrattamento::rinumera() {
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        rcRighi_->record(i)->cell(NUMERO).value = numeroRigo(i + 1);
    rcRighi_->populate();
}

void RigheTrattamento::evidenzia(const QString& dente) {
    for (int i = 0; i < rcRighi_->recordCount(); ++i) {
        platform::ReportRecord& record = *rcRighi_->record(i);
        const bool sua = !dente.isEmpty() && denti(record).contains(dente);
        for (int cella = NUMERO; cella <= NOTE; ++cella)
            record.cell(cella).setBold(sua);
        if (!sua) dipingi(record);
    }
    rcRighi_->populate();
}

void RigheTrattamento::copia(frmZoomRighiTrattamento& zoom) const {
    for (int i = 0; i < rcRighi_->recordCount(); ++i)
        zoom.aggiungi(*rcRighi_->record(i));
}

QString RigheTrattamento::dentiDelServizio(const QString& servizio) const {
    QStringList scelti;
    for (const RigoGrafico& rigo : perIlDisegno()) {
        if (rigo.servizio != servizio) continue;
        for (const QString& dente : rigo.teeth.entries()) {
            if (!dente.isEmpty() && !scelti.contains(dente)) scelti << dente;
        }
    }
    return ToothList(scelti).selection();
}

// ------------------------------------------------------------------------------------------------------ the commands

void RigheTrattamento::arma(Comando comando) {
    comandoArmato_ = comando;
    tmRighi_->start();
}

void RigheTrattamento::premi(Comando comando) {
    if (cbRighi_[comando]->isEnabled()) cbRighi_[comando]->click();
}

void RigheTrattamento::concludiModifica() {
    rcRighi_->finishEdit();
}

void RigheTrattamento::esegui(int comando) {
    comandoArmato_ = -1;
    concludiModifica(); // a command works on what was typed
    if (comando == NUOVO && !solaLettura_) nuovoRigo();
    if (comando == MODIFICA) modificaRigo(rcRighi_->focusedRecord());
    if (comando == ELIMINA && !solaLettura_) eliminaRigo();
    if (comando == ZOOM) emit zoomChiesto();
}

void RigheTrattamento::nuovoRigo() {
    clsItemRigoTrattamento rigo;
    rigo.progressivo = numeroRigo(rcRighi_->recordCount() + 1);
    rigo.fattura = fatturaAnticipo_;
    platform::ReportRecord* record = aggiungi(rigo);
    record->cell(FATTURA).tag.clear(); // no price yet: the catalogue's counts
    rcRighi_->populate();
    emit cambiati();
    if (!isVisible() || !isEnabled()) return;
    rcRighi_->setFocus();
    rcRighi_->setFocusedRecord(record);
    rcRighi_->editCell(record, SERVIZIO);
}

void RigheTrattamento::eliminaRigo() {
    platform::ReportRecord* record = rcRighi_->focusedRecord();
    if (!record) return;
    rcRighi_->removeRecord(record);
    rinumera();
    emit rigoScelto(QString());
    emit cambiati();
}

platform::ReportRecord* RigheTrattamento::rigoNumero(const QString& numero) const {
    for (int i = 0; i < rcRighi_->recordCount() && !numero.isEmpty(); ++i) {
        if (rcRighi_->record(i)->cell(NUMERO).value == numero) return rcRighi_->record(i);
    }
    return nullptr;
}

bool RigheTrattamento::apriRigo(const QString& numero) {
    return modificaRigo(rigoNumero(numero));
}

bool RigheTrattamento::modificaRigo(platform::ReportRecord* record) {
    if (!record) return false;
    clsItemRigoTrattamento rigo = leggi(*record, posizione(record) + 1);
    if (!ModificaRigoTrattamento(rigo, solaLettura_)) return false;
    aggiorna(rigo, *record);
    dipingi(*record);
    rcRighi_->refreshRecord(record);
    emit cambiati();
    emit rigoScelto(denti(*record).selection());
    return true;
}

void RigheTrattamento::sposta(int passo) {
    platform::ReportRecord* record = rcRighi_->focusedRecord();
    if (!record || solaLettura_) return;
    const int da = posizione(record);
    const int a = da + passo;
    if (a < 0 || a >= rcRighi_->recordCount()) return;
    rcRighi_->moveRecord(da, a);
    rinumera();
    rcRighi_->setFocusedRecord(record);
    emit cambiati();
}

void RigheTrattamento::tasto(QKeyEvent* evento) {
    const auto premuti = evento->modifiers() & ~Qt::KeypadModifier;
    const bool ctrlAlt = premuti == (Qt::ControlModifier | Qt::AltModifier);
    const int key = evento->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (rcRighi_->focusedRecord()) arma(MODIFICA);
        evento->accept();
    } else if (ctrlAlt && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        sposta(key == Qt::Key_Up ? -1 : 1);
        evento->accept();
    }
}

void RigheTrattamento::mostraMenu() {
    const bool scelto = rcRighi_->focusedRecord() != nullptr;
    // miRighi: the positions are those of the commands, an empty caption is not shown.
    QList<platform::MenuEntry> voci(4);
    if (!solaLettura_) voci[NUOVO].caption = QStringLiteral("Nuovo rigo");
    if (scelto) voci[MODIFICA].caption = solaLettura_ ? QStringLiteral("Dettagli") : QStringLiteral("Modifica rigo");
    if (scelto && !solaLettura_) voci[ELIMINA].caption = QStringLiteral("Elimina rigo");
    voci[ZOOM].caption = QStringLiteral("Zoom");
    const int scelta = platform::dialogs().popup(voci);
    if (scelta >= 0) arma(static_cast<Comando>(scelta));
}

void RigheTrattamento::doppioClic(platform::ReportRecord* record, int colonna) {
    if (!record) return;
    if (colonna == DENTE && !solaLettura_)
        scegliDenti(record);
    else
        arma(MODIFICA);
}
