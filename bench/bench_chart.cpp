#include "BenchPractice.h"
#include "Measures.h"
#include "PlanSample.h"

#include "chart/ChartComposition.h"
#include "chart/EvidencePanel.h"
#include "chart/ToothChart.h"
#include "chart/clsGraphical.h"
#include "desk/shell/Desk.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "module/Plugin.h"
#include "platform/ReportGrid.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <cstdio>
#include <utility>

// What the dentist waits for at the chart: the picture after a change of one row, against drawing all of it anew;
// composition by number of rows; a stored plan from its record to a painted window; work in an endless plan.

namespace {

constexpr int ROWS = 60;
constexpr int ENDLESS_PLAN = 2000;
constexpr QSize SCREEN(1920, 1080);

QList<ChartRow> rows(int count) {
    static const QStringList services{QStringLiteral("CORONA"), QStringLiteral("OTTURAZ"), QStringLiteral("DEVITAL"),
                                      QStringLiteral("IMPIANTO"), QStringLiteral("IGIENE")};
    QList<ChartRow> rows;
    for (int row = 0; row < count; ++row) {
        const bool started = row % 3 > 0;
        rows.append({ToothList({DenteDaIndice(row % 32)}), services[row % services.size()], QStringLiteral("Lavoro"),
                     started ? QStringLiteral("01/03/2025") : QString(),
                     row % 3 > 1 ? QStringLiteral("09/03/2025") : QString()});
    }
    return rows;
}

/// The chart with what stands beside it, as large as the editor has it on a full screen.
struct Chart {
    QWidget window;
    ToothChart* teeth = new ToothChart;
    EvidencePanel* evidence = new EvidencePanel;

    Chart() {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(teeth, 1);
        row->addWidget(evidence);
        window.resize(SCREEN);
        window.show();
        QCoreApplication::processEvents();
    }
};

void changeOfARow(benchmark::State& state) {
    Chart chart;
    ChartComposition composition(*oGraphical);
    composition.composeTeeth(QStringLiteral("3:2:dolente;20:9:"));
    QList<ChartRow> plan = rows(ROWS);
    bool open = false;
    for (auto _ : state) {
        open = !open;
        plan[30].end = open ? QString() : QStringLiteral("09/03/2025");
        plan[30].service = open ? QStringLiteral("CORONA") : QStringLiteral("OTTURAZ");
        composition.composeServices(plan);
        composition.composeMarks(plan);
        chart.teeth->setComposition(composition);
        chart.evidence->setComposition(composition);
        QCoreApplication::processEvents();
    }
}

/// All of the chart anew, as when the window comes up from behind another.
void wholeChart(benchmark::State& state) {
    Chart chart;
    ChartComposition composition(*oGraphical);
    composition.composeTeeth(QString());
    composition.composeServices(rows(ROWS));
    composition.composeMarks(rows(ROWS));
    chart.teeth->setComposition(composition);
    for (auto _ : state)
        chart.window.repaint();
}

void composition(benchmark::State& state) {
    ChartComposition composition(*oGraphical);
    const QList<ChartRow> plan = rows(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        composition.composeServices(plan);
        composition.composeMarks(plan);
    }
}

void openPlan(benchmark::State& state, const QString& id) {
    for (auto _ : state) {
        frmEditTrattamento editor(id);
        editor.resize(SCREEN);
        editor.show();
        QCoreApplication::processEvents();
        editor.close();
    }
}

/// A date into the last row of a plan: row, marks, chart and totals follow.
void editDate(benchmark::State& state, const QString& id) {
    frmEditTrattamento editor(id);
    editor.resize(SCREEN);
    editor.show();
    auto* grid = editor.findChild<platform::ReportGrid*>(QStringLiteral("rcRighi"));
    bool started = false;
    for (auto _ : state) {
        started = !started;
        if (!grid->enterText(grid->rowCount() - 1, 4, started ? QStringLiteral("09/03/2025") : QString()))
            state.SkipWithError("the cell cannot be edited");
        QCoreApplication::processEvents();
    }
    editor.close();
}

void saveEndless(benchmark::State& state, const QString& id) {
    for (auto _ : state) {
        state.PauseTiming();
        frmEditTrattamento editor(id);
        editor.show();
        state.ResumeTiming();
        editor.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        if (editor.isVisible()) state.SkipWithError("not saved");
    }
}

QString storedPlan(int rows) {
    clsItemTrattamento plan = planSample(rows, rows);
    oTrattamenti->Salva(plan);
    return plan.ID;
}

} // namespace

int main(int argc, char** argv) {
    BenchPractice practice(argc, argv);
    practice.options.demo = true;
    sAppPath = QStringLiteral(CORVALA_APP_DIR);
    const auto desk = desk::Desk::open(practice.options);
    if (!desk->attachModule(std::make_unique<Plugin>())) return 1;
    if (!desk->openPatientByTaxCode(QStringLiteral("RSSMRA80A01H501U"))) return 1;
    const QString usual = storedPlan(ROWS);
    const QString endless = storedPlan(ENDLESS_PLAN);

    BENCHMARK(wholeChart)->Unit(benchmark::kMillisecond);
    BENCHMARK(changeOfARow)->Unit(benchmark::kMillisecond);
    BENCHMARK(composition)->Arg(10)->Arg(60)->Arg(600)->Unit(benchmark::kMillisecond);
    const std::pair<const char*, QString> plans[] = {{"openPlan", usual}, {"openEndless", endless}};
    for (const auto& [name, id] : plans) {
        const auto open = [id = id](benchmark::State& state) { openPlan(state, id); };
        benchmark::RegisterBenchmark(name, open)->Unit(benchmark::kMillisecond);
    }
    for (const auto& [name, id] : {std::pair("editPlan", usual), std::pair("editEndless", endless)}) {
        const auto edit = [id = id](benchmark::State& state) { editDate(state, id); };
        benchmark::RegisterBenchmark(name, edit)->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("saveEndless", [&endless](benchmark::State& state) {
        saveEndless(state, endless);
    })->Unit(benchmark::kMillisecond);
    Measures measures;
    benchmark::RunSpecifiedBenchmarks(&measures);
    std::printf("\n");
    measures.printRatio("change of one row, against the whole chart", "changeOfARow", "wholeChart", 0.5);
    measures.printRatio("composition of 600 rows against 60", "composition/600", "composition/60", 12);
    measures.printLimit("chart after a change of one row", "changeOfARow", 8);
    measures.printLimit("stored plan of 60 rows to a painted window", "openPlan", 120);
    measures.printLimit("the same with 2,000 rows", "openEndless", 1000);
    measures.printLimit("a date into one of 60 rows", "editPlan", 2);
    measures.printLimit("a date into one of 2,000 rows", "editEndless", 6);
    measures.printLimit("a plan of 2,000 rows saved", "saveEndless", 1000);
    return 0;
}
