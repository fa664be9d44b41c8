#include "treatments/PannelloDenti.h"

#include "chart/EvidencePanel.h"
#include "chart/ToothChart.h"
#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"
#include "treatments/modSituazioneDente.h"

#include <QHBoxLayout>
#include <exception>

namespace {

// The menu has these five, whatever else the practice lists.
const QStringList SITUAZIONI_DEL_MENU{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                      QStringLiteral("4"), QStringLiteral("9")};
// Positions in the menu; a line lies between the two.
constexpr int INFORMAZIONI = 1;
constexpr int PRIMA_SITUAZIONE = 3;

// Without a configuration of its own the chart stays plain.
const clsGraphical& grafica() {
    static const clsGraphical vuota;
    return oGraphical ? *oGraphical : vuota;
}

ComposizioneDenti::Options opzioni() {
    ComposizioneDenti::Options scelte;
    if (oConfig) {
        scelte.evidenziaBreve = oConfig->EvidenziaBreve();
        scelte.saltaAllOcchio = oConfig->SaltaAllOcchio();
        scelte.peggiorStatusDente = oConfig->PeggiorStatusDente();
    }
    return scelte;
}

} // namespace

PannelloDenti::PannelloDenti(QWidget* parent)
    : QWidget(parent)
    , denti_(new ToothChart(this))
    , evidenza_(new EvidencePanel(this))
    , composizione_(grafica(), opzioni()) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(denti_, 1);
    row->addWidget(evidenza_);
    connect(denti_, &ToothChart::toothClicked, this, &PannelloDenti::clicDente);
    connect(denti_, &ToothChart::toothRightClicked, this, &PannelloDenti::menuDente);
    connect(evidenza_, &EvidencePanel::serviceClicked, this, &PannelloDenti::servizioScelto);
}

void PannelloDenti::caricaSituazione(const QString& situazioneOrale) {
    composizione_.composeTeeth(situazioneOrale);
    denti_->setComposition(composizione_);
}

void PannelloDenti::aggiorna(const QList<RigoGrafico>& righi) {
    try {
        composizione_.composeServices(righi);
    } catch (const std::exception& errore) {
        const QString testo = QStringLiteral("Errori inattesi (sistemazione icone servizi)!\r\n - fase: ") +
                              composizione_.phase() + QLatin1String("\r\n - errore: ") +
                              QString::fromUtf8(errore.what());
        platform::dialogs().message(testo, platform::MB_WARNING, QString::fromUtf16(TITOLO_CORVALA));
    }
    composizione_.composeMarks(righi);
    denti_->setComposition(composizione_);
    evidenza_->setComposition(composizione_);
}

void PannelloDenti::plbSelezionaTooh(const QString& denti) {
    denti_->setSelection(denti);
}

void PannelloDenti::clicDente(int indice) {
    const QString dente = denti_->isMarked(indice) ? QString() : DenteDaIndice(indice);
    plbSelezionaTooh(dente);
    emit denteScelto(dente);
}

void PannelloDenti::menuDente(int indice) {
    if (!oHost) return; // the module may have ended under the window
    QStringList voci{QStringLiteral("Informazioni")};
    if (!solaLettura_) {
        voci << QStringLiteral("-------------------");
        for (const QString& id : SITUAZIONI_DEL_MENU)
            voci << (NomeSituazioneDente(id).isEmpty() ? id : NomeSituazioneDente(id));
    }
    const int scelta = oHost->Framework().Popup(voci);
    if (scelta == INFORMAZIONI) emit informazioniChieste(indice);
    if (scelta < PRIMA_SITUAZIONE) return;
    const QString situazione = SITUAZIONI_DEL_MENU.value(scelta - PRIMA_SITUAZIONE);
    const QString testo = voce(indice).section(QLatin1Char(':'), 2);
    applica(indice, QString::number(indice) + QLatin1Char(':') + situazione + QLatin1Char(':') + testo);
}

QString PannelloDenti::voce(int indice) const {
    const QString voce = composizione_.tooth(indice).situazione;
    return voce.isEmpty() ? QString::number(indice) + QStringLiteral("::") : voce;
}

void PannelloDenti::applica(int indice, const QString& voce) {
    composizione_.composeTooth(indice, voce);
    denti_->setComposition(composizione_);
}
