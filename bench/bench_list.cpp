#include "BenchPractice.h"
#include "Floor.h"
#include "Measures.h"
#include "PlanSample.h"

#include "desk/data/Transaction.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Practice.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Clock.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"
#include "store/modWorkspace.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmMDITrattamenti.h"

#include <QAbstractItemView>
#include <QDateEdit>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <cstdio>

// The practice-wide list of plans in its real window: query, patients, memos and grid rows, against the bare query with
// a bare parse of the same memos; then what a user waits for, the first page painted, and a frame while it scrolls.

namespace {

constexpr int PATIENTS = 2000;
constexpr int ROWS = 12;
constexpr double LIMIT = 1.1;
constexpr double FIRST_PAGE = 0.25;

/// The plans of the period that ends on this day; the first ones are dated earlier than the later ones.
struct Size {
    int plans;
    QDate lastDay;
};
const Size SIZES[] = {{1000, {2025, 3, 10}}, {10000, {2025, 3, 11}}, {50000, {2025, 3, 12}}};
const QDate FIRST_DAY(2025, 3, 1);

QDate dayOf(int number) {
    for (const Size& size : SIZES) {
        if (number < size.plans) return size.lastDay;
    }
    return {};
}

QStringList fillPatients(desk::Practice& practice) {
    QStringList ids;
    for (int i = 0; i < PATIENTS; ++i) {
        desk::PatientData patient;
        patient.Cognome = QStringLiteral("Rossi %1").arg(i);
        patient.Nome = QStringLiteral("Maria");
        patient.codicefiscale = QStringLiteral("RSSMRA80A41H%1U").arg(i, 4, 10, QLatin1Char('0'));
        practice.patients().insert(patient);
        ids += patient.ID;
    }
    return ids;
}

void fill(const desk::Options& options) {
    const auto practice = desk::Practice::open(options);
    desk::Transaction transaction(practice->database());
    const QStringList patients = fillPatients(*practice);
    for (int i = 0; i < std::end(SIZES)[-1].plans; ++i) {
        const auto patient = practice->newPatient();
        patient->Init(patients[i % PATIENTS]);
        clsItemTrattamento plan = planSample(ROWS, i);
        plan.Data = platform::regional().shortDate(dayOf(i));
        QString id;
        patient->corvala().Salva(
            id, {plan.Data, plan.number().text(), plan.descrizione, QStringLiteral("TRT"), writeTreatmentMemo(plan)});
    }
    transaction.commit();
}

void bareList(benchmark::State& state, const QSqlDatabase& connection) {
    const Size& size = SIZES[state.range(0)];
    for (auto _ : state) {
        QSqlQuery query(connection);
        query.setForwardOnly(true);
        query.exec(periodQuery(QStringLiteral("TRT"), FIRST_DAY, size.lastDay)
                       .remove(oHost->Utente().idschema() + QLatin1Char('.')));
        const QSqlRecord columns = query.record();
        const int memo = columns.indexOf(QStringLiteral("m1"));
        int plans = 0;
        for (; query.next(); ++plans) {
            for (int column = 0; column < columns.count(); ++column)
                benchmark::DoNotOptimize(query.value(column));
            benchmark::DoNotOptimize(readBare(query.value(memo).toString().toUtf8()));
        }
        if (plans != size.plans) state.SkipWithError("wrong number of plans");
    }
}

void windowPeriod(frmMDITrattamenti& window, const Size& size) {
    window.findChild<QDateEdit*>(QStringLiteral("dtpData(0)"))->setDate(FIRST_DAY);
    window.findChild<QDateEdit*>(QStringLiteral("dtpData(1)"))->setDate(size.lastDay);
}

void readAll(frmMDITrattamenti& window) {
    window.RefreshTrattamenti(QString());
    const auto* interrupt = window.findChild<QWidget*>(QStringLiteral("cbInterrompi"));
    while (interrupt->isVisible())
        QCoreApplication::processEvents();
}

void firstPage(benchmark::State& state, frmMDITrattamenti& window) {
    windowPeriod(window, SIZES[state.range(0)]);
    const auto* grid = window.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    for (auto _ : state) {
        window.RefreshTrattamenti(QString());
        grid->view()->viewport()->repaint();
    }
    if (grid->recordCount() != SIZES[state.range(0)].plans) state.SkipWithError("wrong number of plans");
}

void windowList(benchmark::State& state, frmMDITrattamenti& window) {
    const Size& size = SIZES[state.range(0)];
    windowPeriod(window, size);
    const auto* grid = window.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    for (auto _ : state)
        readAll(window);
    if (grid->recordCount() != size.plans) state.SkipWithError("wrong number of plans");
}

/// Page by page through the list of 10,000 plans: every row that comes up is a new one.
void scrollList(benchmark::State& state, frmMDITrattamenti& window) {
    windowPeriod(window, SIZES[1]);
    readAll(window);
    const auto* grid = window.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    QAbstractItemView* view = grid->view();
    int row = 0;
    for (auto _ : state) {
        row = (row + 997) % grid->rowCount();
        view->scrollTo(view->model()->index(row, 0), QAbstractItemView::PositionAtTop);
        QCoreApplication::processEvents();
    }
}

} // namespace

int main(int argc, char** argv) {
    BenchPractice practice(argc, argv);
    fill(practice.options);

    platform::setClock(QDateTime(QDate(2024, 1, 1), QTime(9, 0))); // The window opens on an empty month.
    const auto desk = desk::Desk::open(practice.options);
    oHost = &desk->host();
    clsTrattamenti plans;
    oTrattamenti = &plans;
    frmMDITrattamenti window;
    window.resize(1920, 1080);
    window.show();
    QSqlDatabase floor = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("floor"));
    floor.setDatabaseName(practice.file());
    if (!floor.open()) return 1;
    const double before = peakMemory();
    windowPeriod(window, SIZES[1]);
    readAll(window);
    const double after = peakMemory();

    for (int i = 0; i < 3; ++i) {
        benchmark::RegisterBenchmark("windowList", [&window](benchmark::State& state) { windowList(state, window); })
            ->Arg(i)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("firstPage", [&window](benchmark::State& state) { firstPage(state, window); })
            ->Arg(i)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("bareList", [&floor](benchmark::State& state) { bareList(state, floor); })
            ->Arg(i)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("scrollList", [&window](benchmark::State& state) {
        scrollList(state, window);
    })->Unit(benchmark::kMillisecond);
    Measures measures;
    benchmark::RunSpecifiedBenchmarks(&measures);
    for (int i = 0; i < 3; ++i) {
        std::string size = "/";
        size += std::to_string(i);
        const QByteArray name = QByteArray::number(SIZES[i].plans) + " plans";
        measures.printRatio(name.constData(), "windowList" + size, "bareList" + size, LIMIT);
        if (i == 2) measures.printRatio("the first page of them", "firstPage" + size, "bareList" + size, FIRST_PAGE);
    }
    std::printf("a list of 10,000 plans read                  peak %.0f MiB, %.0f MiB before it\n", after, before);
    measures.printLimit("a frame while scrolling 10,000 plans", "scrollList", 16);
    oTrattamenti = nullptr;
    oHost = nullptr;
    return 0;
}
