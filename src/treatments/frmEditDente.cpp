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

constexpr QChar PARTI = u':';
constexpr QChar VOCI = u';';
constexpr int INGRANDIMENTO = 3;

QString immagine(int indice, const QString& situazione) {
    QString file;
    if (!oGraphical || !oGraphical->SituazioneDente(DenteDaIndice(indice), situazione, file)) return {};
    return platform::files::exists(file) ? file : QString();
}

bool riguarda(const clsItemRigoTrattamento& rigo, const QString& indice) {
    return rigo.dente == QLatin1String("+") ? rigo.denti.split(VOCI).contains(indice) : rigo.dente == indice;
}

/// The tooth's own entry in the situation of a plan; empty when it has none.
QString voceDelDente(const clsItemTrattamento& item, const QString& indice) {
    const QStringList voci = item.SituazioneOrale.split(VOCI);
    for (const QString& voce : voci) {
        if (voce.section(PARTI, 0, 0) == indice) return voce;
    }
    return {};
}

/// The mark that parts the entries of a plan would tear this one apart, and its neighbours with it.
QString senzaSeparatori(QString testo) {
    return testo.replace(VOCI, QLatin1Char(',')).simplified();
}

platform::ReportGrid* elenco(const QString& nome, const QString& accessibile, QWidget* parent) {
    auto* griglia = named(new platform::ReportGrid(parent), nome);
    griglia->setAccessibleName(accessibile);
    griglia->setTexts(QStringLiteral("Non ci sono dati da visualizzare"), QString(), QString());
    griglia->setColours(QColor(224, 233, 248), QColor(255, 255, 255), QColor(212, 208, 200));
    griglia->setGroupBoxVisible(false);
    griglia->setReadOnly(true);
    griglia->setEditMode(false, false);
    griglia->setSort(-1, Qt::AscendingOrder);
    return griglia;
}

void colonna(platform::ReportGrid& griglia, const QString& didascalia, int larghezza, bool ridimensionabile = false) {
    platform::ReportColumn descrizione;
    descrizione.caption = didascalia;
    descrizione.width = larghezza;
    descrizione.resizable = ridimensionabile;
    griglia.addColumn(descrizione);
}

} // namespace

frmEditDente::frmEditDente(const PianoDelDente& piano, int indice, const DenteComposto& dente, QWidget* parent)
    : QDialog(parent)
    , piano_(piano)
    , indice_(indice)
    , dente_(dente) {
    setObjectName(QStringLiteral("frmEditDente"));
    setWindowTitle(TitoloForm(QStringLiteral("Gestione Dente")));
    costruisciCampi();
    costruisciElenchi();
    disponi();
    InizializzaForm(this);
    cbSituazione_->setFocus();
}

void frmEditDente::costruisciCampi() {
    using platform::form::button;
    cbSituazione_ = named(new QComboBox(this), QStringLiteral("cbSituazione"));
    riempiSituazioni();
    cbNessuna_ = button(QStringLiteral("cbNessuna"), QStringLiteral("Nessuna"), this);
    cbNessuna_->setToolTip(QStringLiteral("Toglie la situazione dal dente"));
    tbDati_ = platform::form::textBox(QStringLiteral("tbDati"), this);
    cbConferma_ = button(QStringLiteral("cbConferma"), QStringLiteral("Conferma"), this);
    cbAnnulla_ = button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cbNessuna_->setAutoDefault(false);
    cbConferma_->setDefault(true);
    if (piano_.solaLettura) {
        for (QWidget* campo : {static_cast<QWidget*>(cbSituazione_), static_cast<QWidget*>(cbNessuna_),
                               static_cast<QWidget*>(tbDati_), static_cast<QWidget*>(cbConferma_)})
            campo->setEnabled(false);
        cbAnnulla_->setText(QStringLiteral("Chiudi"));
    }
    connect(cbSituazione_, &QComboBox::currentIndexChanged, this, &frmEditDente::mostraSituazione);
    connect(cbNessuna_, &QPushButton::clicked, this, &frmEditDente::togliSituazione);
    connect(cbConferma_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cbAnnulla_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmEditDente::costruisciElenchi() {
    rcTrattamenti_ = elenco(QStringLiteral("rcTrattamenti"), QStringLiteral("Trattamenti del dente"), this);
    colonna(*rcTrattamenti_, QStringLiteral("Progressivo"), 80);
    colonna(*rcTrattamenti_, QStringLiteral("Data"), 70);
    colonna(*rcTrattamenti_, QStringLiteral("Situazione"), 90);
    colonna(*rcTrattamenti_, QStringLiteral("Note"), 20, true);
    rcRighi_ = elenco(QStringLiteral("rcRighi"), QStringLiteral("Lavori sul dente"), this);
    colonna(*rcRighi_, QStringLiteral("Servizio"), 90);
    colonna(*rcRighi_, QStringLiteral("Descrizione"), 90, true);
    connect(rcTrattamenti_, &platform::ReportGrid::focusedRecordChanged, this, &frmEditDente::mostraRighi);
}

QLayout* frmEditDente::colonnaDente() {
    auto* piastra = new QWidget(this);
    immagine_ = new ToothBox(indice_, piastra);
    immagine_->setTooth(dente_);
    immagine_->setFixedSize(ToothBox::naturalSize(indice_) * INGRANDIMENTO);
    immagine_->numberLabel()->hide(); // the number of the chart; this window has its own
    // In this window there is one tooth, and its parts go by names without a number.
    const std::pair<const char*, const char*> nomi[] = {{"imTooth", "imTooh"},
                                                        {"imTrt01", "imTrt01"},
                                                        {"imTrt02", "imTrt02"},
                                                        {"imTrt03", "imTrt03"},
                                                        {"imStatusLavori", "imStatusLavori"}};
    for (const auto& [nellaTavola, qui] : nomi) {
        if (auto* parte = immagine_->findChild<QWidget*>(arrayName(nellaTavola, indice_)))
            parte->setObjectName(QLatin1String(qui));
    }
    immagine_->numberLabel()->setObjectName(QString());
    piastra->setFixedSize(immagine_->size());
    laDente_ = named(new QLabel(DenteDaIndice(indice_), this), arrayName("laDente", 0));
    QFont grande = laDente_->font();
    grande.setPointSizeF(grande.pointSizeF() * 1.6);
    grande.setBold(true);
    laDente_->setFont(grande);
    auto* colonna = new QVBoxLayout;
    colonna->addStretch(1);
    // The number stands on the side of the roots, as on the chart.
    if (DenteSuperiore(indice_)) colonna->addWidget(laDente_, 0, Qt::AlignHCenter);
    colonna->addWidget(piastra, 0, Qt::AlignHCenter);
    if (!DenteSuperiore(indice_)) colonna->addWidget(laDente_, 0, Qt::AlignHCenter);
    colonna->addStretch(1);
    return colonna;
}

void frmEditDente::disponi() {
    using platform::form::labelledRow;
    QString piano = QStringLiteral("Trattamento ") + piano_.anno + QLatin1Char('-') + piano_.progressivo;
    if (!piano_.data.isEmpty()) piano += QStringLiteral(" del ") + piano_.data;
    auto* situazione = new QWidget(this);
    auto* rigaSituazione = new QHBoxLayout(situazione);
    rigaSituazione->setContentsMargins(0, 0, 0, 0);
    rigaSituazione->addWidget(cbSituazione_, 1);
    rigaSituazione->addWidget(cbNessuna_);
    situazione->setFocusProxy(cbSituazione_);
    auto* campi = new QGridLayout;
    labelledRow(campi, 0, 0, QStringLiteral("Situazione:"), situazione);
    labelledRow(campi, 1, 0, QStringLiteral("Note:"), tbDati_);
    campi->setColumnStretch(1, 1);
    cbSituazione_->setAccessibleName(QStringLiteral("Situazione del dente"));
    tbDati_->setAccessibleName(QStringLiteral("Note sul dente"));

    auto* trattamenti = platform::form::titledArea(QStringLiteral("Trattamenti del dente"), this);
    (new QVBoxLayout(trattamenti))->addWidget(rcTrattamenti_);
    auto* lavori = platform::form::titledArea(QStringLiteral("Lavori sul dente"), this);
    (new QVBoxLayout(lavori))->addWidget(rcRighi_);

    auto* destra = new QVBoxLayout;
    destra->addWidget(platform::form::heading(QStringLiteral("laTitoloForm"), piano, this));
    destra->addLayout(campi);
    destra->addWidget(trattamenti, 1);
    destra->addWidget(lavori, 1);
    auto* centro = new QHBoxLayout;
    centro->addLayout(colonnaDente());
    centro->addSpacing(12);
    centro->addLayout(destra, 1);
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(centro, 1);
    tutto->addLayout(platform::form::buttonRow({cbConferma_, cbAnnulla_}));
    resize(780, 560);
    QWidget* precedente = cbSituazione_;
    for (QWidget* prossimo : {static_cast<QWidget*>(cbNessuna_), static_cast<QWidget*>(tbDati_),
                              static_cast<QWidget*>(rcTrattamenti_->view()), static_cast<QWidget*>(rcRighi_->view()),
                              static_cast<QWidget*>(cbConferma_), static_cast<QWidget*>(cbAnnulla_)}) {
        setTabOrder(precedente, prossimo);
        precedente = prossimo;
    }
}

void frmEditDente::riempiSituazioni() {
    if (colSituazioniDenti) {
        for (const clsItemSituazioneDente& situazione : *colSituazioniDenti)
            cbSituazione_->addItem(situazione.descrizione, situazione.id);
    }
    cbSituazione_->setCurrentIndex(-1);
}

void frmEditDente::carica(const QString& voce) {
    const QString situazione = voce.section(PARTI, 1, 1);
    tbDati_->setText(voce.section(PARTI, 2));
    cbSituazione_->setCurrentIndex(situazione.isEmpty() ? -1 : cbSituazione_->findData(situazione));
    const QString file = situazione.isEmpty() ? QString() : immagine(indice_, situazione);
    dente_.immagine = file.isEmpty() ? immagine(indice_, QString()) : file;
    immagine_->setTooth(dente_);
    riempiTrattamenti();
}

QString frmEditDente::voce() const {
    const QString situazione = cbSituazione_->currentIndex() < 0 ? QString() : cbSituazione_->currentData().toString();
    return QString::number(indice_) + PARTI + situazione + PARTI + senzaSeparatori(tbDati_->text());
}

void frmEditDente::mostraSituazione() {
    const QString situazione = cbSituazione_->currentIndex() < 0 ? QString() : cbSituazione_->currentData().toString();
    const QString file = situazione.isEmpty() ? QString() : immagine(indice_, situazione);
    dente_.immagine = file.isEmpty() ? immagine(indice_, QString()) : file;
    immagine_->setTooth(dente_);
}

void frmEditDente::togliSituazione() {
    cbSituazione_->setCurrentIndex(-1);
    cbSituazione_->setFocus();
}

// --------------------------------------------------------------------------------------------- what was done before

void frmEditDente::riempiTrattamenti() {
    const QString indice = QString::number(indice_);
    const QString numero = piano_.anno + QLatin1Char('-') + piano_.progressivo;
    platform::ReportRecord* attuale = nullptr;
    reading_.read(*rcTrattamenti_, [&] {
        if (!oTrattamenti) return;
        for (const clsItemTrattamento& item : oTrattamenti->Lista()) {
            bool trattato = false;
            for (const clsItemRigoTrattamento& rigo : item.righi)
                trattato = trattato || riguarda(rigo, indice);
            if (!trattato) continue;
            const QString voce = voceDelDente(item, indice);
            platform::ReportRecord* record = rcTrattamenti_->addRecord();
            record->tag = item.ID;
            record->cell(0).value = unisciIdrif1(item);
            record->cell(1).value = item.Data;
            record->cell(2).value = NomeSituazioneDente(voce.section(PARTI, 1, 1));
            record->cell(3).value = voce.section(PARTI, 2);
            if (record->cell(0).value == numero) attuale = record;
        }
    });
    rcTrattamenti_->populate();
    rcTrattamenti_->setFocusedRecord(attuale);
    mostraRighi();
}

void frmEditDente::mostraRighi() {
    const QString indice = QString::number(indice_);
    const platform::ReportRecord* scelto = rcTrattamenti_->focusedRecord();
    readingRows_.read(*rcRighi_, [&] {
        const clsItemTrattamento* item = scelto && oTrattamenti ? oTrattamenti->Lista().find(scelto->tag) : nullptr;
        if (!item) return;
        for (const clsItemRigoTrattamento& rigo : item->righi) {
            if (!riguarda(rigo, indice)) continue;
            platform::ReportRecord* record = rcRighi_->addRecord();
            record->cell(0).value = rigo.servizio;
            record->cell(1).value = rigo.descrizione;
        }
    });
    rcRighi_->populate();
}
