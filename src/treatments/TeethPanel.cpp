#include "treatments/TeethPanel.h"

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
const QStringList MENU_SITUATIONS{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                                  QStringLiteral("9")};
// Positions in the menu; a line lies between the two.
constexpr int DETAILS = 1;
constexpr int FIRST_SITUATION = 3;

// Without a configuration of its own the chart stays plain.
const clsGraphical& graphics() {
    static const clsGraphical plain;
    return oGraphical ? *oGraphical : plain;
}

ChartComposition::Options options() {
    ChartComposition::Options choices;
    if (oConfig) {
        choices.showShortList = oConfig->EvidenziaBreve();
        choices.showAtAGlance = oConfig->SaltaAllOcchio();
        choices.worstStateWins = oConfig->PeggiorStatusDente();
    }
    return choices;
}

} // namespace

TeethPanel::TeethPanel(QWidget* parent)
    : QWidget(parent)
    , chart_(new ToothChart(this))
    , evidence_(new EvidencePanel(this))
    , composition_(graphics(), options()) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(chart_, 1);
    row->addWidget(evidence_);
    connect(chart_, &ToothChart::toothClicked, this, &TeethPanel::clickTooth);
    connect(chart_, &ToothChart::toothRightClicked, this, &TeethPanel::toothMenu);
    connect(evidence_, &EvidencePanel::serviceClicked, this, &TeethPanel::serviceChosen);
}

void TeethPanel::loadSituation(const QString& mouthSituation) {
    composition_.composeTeeth(mouthSituation);
    chart_->setComposition(composition_);
}

void TeethPanel::setRows(const QList<ChartRow>& rows) {
    try {
        composition_.composeServices(rows);
    } catch (const std::exception& error) {
        const QString text = QStringLiteral("Errori inattesi (sistemazione icone servizi)!\r\n - fase: ") +
                             composition_.phase() + QLatin1String("\r\n - errore: ") + QString::fromUtf8(error.what());
        platform::dialogs().message(text, platform::MB_WARNING, QString::fromUtf16(CORVALA_TITLE));
    }
    composition_.composeMarks(rows);
    chart_->setComposition(composition_);
    evidence_->setComposition(composition_);
}

void TeethPanel::plbSelezionaTooh(const QString& teeth) {
    chart_->setSelection(teeth);
}

void TeethPanel::clickTooth(int index) {
    const QString tooth = chart_->isMarked(index) ? QString() : DenteDaIndice(index);
    plbSelezionaTooh(tooth);
    emit toothChosen(tooth);
}

void TeethPanel::toothMenu(int index) {
    if (!oHost) return; // the module may have ended under the window
    QStringList entries{QStringLiteral("Informazioni")};
    if (!readOnly_) {
        entries << QStringLiteral("-------------------");
        for (const QString& id : MENU_SITUATIONS)
            entries << (situationName(id).isEmpty() ? id : situationName(id));
    }
    const int choice = oHost->Framework().Popup(entries);
    if (choice == DETAILS) emit detailsRequested(index);
    if (choice < FIRST_SITUATION) return;
    ToothSituation chosen = situation(index);
    chosen.situation = MENU_SITUATIONS.value(choice - FIRST_SITUATION);
    apply(chosen);
}

void TeethPanel::apply(const ToothSituation& situation) {
    composition_.composeTooth(situation);
    chart_->setComposition(composition_);
}
