// The controls of the row editor: what they are called and where they lie.
#include "platform/Clock.h"
#include "platform/FormLayout.h"
#include "treatments/PannelloStadio.h"
#include "treatments/frmEditRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

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
    const std::array<QString, 4> scopi{QStringLiteral("Cerca il servizio"), QStringLiteral("Scegli l'operatore"),
                                       QStringLiteral("Scegli l'assistente"), QStringLiteral("Scegli i denti")};
    for (std::size_t i = 0; i < cerca_.size(); ++i) {
        cerca_[i] = button(nomi[i], QStringLiteral("..."), this);
        cerca_[i]->setAutoDefault(false);
        cerca_[i]->setFixedWidth(34);
        cerca_[i]->setToolTip(scopi[i]);
        cerca_[i]->setAccessibleName(scopi[i]);
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
    tbTotali_[0]->installEventFilter(this);
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
