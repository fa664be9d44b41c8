#include "BenchPractice.h"
#include "Measures.h"
#include "Median.h"
#include "PlanSample.h"

#include "desk/data/Transaction.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Practice.h"
#include "host/context.h"
#include "host/contract/Forms.h"
#include "module/Plugin.h"
#include "store/modWorkspace.h"
#include "treatments/TreatmentMemo.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <cstdio>
#include <ctime>
#include <vector>

// A patient with 200 records opened in the desk: events, lists, panels and ribbon, against the bare queries that
// this takes. And the ribbon of the module built in a new main window.

namespace {

constexpr int RECORDS = 200;
constexpr int ROWS = 12;
constexpr double LIMIT = 4;
constexpr double RIBBON_LIMIT = 20; // ms
constexpr int RIBBONS = 10;
const char* const TYPES[] = {"TRT", "PRV", "FTT", "PGM", "CPD"};

/// The queries behind a patient who opens: the patient with the doctor, the records for each list, the notes.
const char* const QUERIES[] = {
    "select p.*, u.* from tblPazienti p left join tblUtenti u on u.ID = p.idmedico where p.ID = ?",
    "select * from tblWorkspace where idpaziente = ? and t1 = 'PRV' order by Data, idrif1, ID",
    "select * from tblWorkspace where idpaziente = ? and t1 = 'TRT' order by Data, idrif1, ID",
    "select * from tblWorkspace where idpaziente = ? and t1 = 'CPD' order by Data, idrif1, ID",
    "select * from tblWorkspace where idpaziente = ? and t1 = 'FTT' order by Data, idrif1, ID",
    "select * from tblWorkspace where idpaziente = ? and t1 = 'PGM' order by Data, idrif1, ID",
    "select * from tblAppunti where idpaziente = ? order by Data desc, ID",
};

QString fill(const desk::Options& options) {
    const auto practice = desk::Practice::open(options);
    desk::Transaction transaction(practice->database());
    desk::PatientData data;
    data.Cognome = QStringLiteral("Rossi");
    data.Nome = QStringLiteral("Maria");
    data.codicefiscale = QStringLiteral("RSSMRA80A41H501U");
    practice->patients().insert(data);
    const auto patient = practice->newPatient();
    patient->Init(data.ID);
    for (int i = 0; i < RECORDS; ++i) {
        const clsItemTrattamento plan = planSample(ROWS, i);
        QString id;
        patient->corvala().Salva(id, {QStringLiteral("01/03/2025"), plan.number().text(), plan.descrizione,
                                      QLatin1String(TYPES[i % 5]), writeTreatmentMemo(plan)});
    }
    transaction.commit();
    return data.ID;
}

void openPatient(benchmark::State& state, desk::Desk& desk, const QString& id) {
    for (auto _ : state) {
        if (!desk.openPatient(id)) state.SkipWithError("the patient does not open");
        state.PauseTiming();
        desk.closePatient();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void bareQueries(benchmark::State& state, const QSqlDatabase& connection, const QString& id) {
    for (auto _ : state) {
        int rows = 0;
        for (const char* sql : QUERIES) {
            QSqlQuery query(connection);
            query.setForwardOnly(true);
            query.prepare(QLatin1String(sql));
            query.addBindValue(id);
            query.exec();
            const int columns = query.record().count();
            for (; query.next(); ++rows) {
                for (int column = 0; column < columns; ++column)
                    benchmark::DoNotOptimize(query.value(column));
            }
        }
        if (rows != RECORDS + 1) state.SkipWithError("wrong number of rows");
    }
}

/// Milliseconds of this process for the module's ribbon, in a main window where there is none yet; the median of
/// some, negative when none was built.
double buildRibbon(const desk::Options& options) {
    std::vector<double> times;
    for (int i = 0; i < RIBBONS; ++i) {
        const auto desk = desk::Desk::open(options);
        Plugin plugin;
        plugin.Init(&desk->host(), QVariant());
        QVariantList form{QVariant::fromValue(dynamic_cast<host::HostForm*>(desk->window()))};
        const std::clock_t start = std::clock();
        plugin.evento(QStringLiteral("form.load"), &desk->host(), form);
        times.push_back(1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        if (commandIds.summary == 0) return -1;
    }
    return medianOf(times);
}

} // namespace

int main(int argc, char** argv) {
    BenchPractice practice(argc, argv);
    sAppPath = QCoreApplication::applicationDirPath();
    const QString id = fill(practice.options);
    const double ribbon = buildRibbon(practice.options);

    const auto desk = desk::Desk::open(practice.options);
    if (!desk->attachModule(std::make_unique<Plugin>())) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(desk->moduleError()));
        return 1;
    }
    desk->window()->show();
    QSqlDatabase floor = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("floor"));
    floor.setDatabaseName(practice.file());
    if (!floor.open()) return 1;
    benchmark::RegisterBenchmark("openPatient", [&](benchmark::State& state) {
        openPatient(state, *desk, id);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("bareQueries", [&](benchmark::State& state) {
        bareQueries(state, floor, id);
    })->Unit(benchmark::kMillisecond);
    Measures measures;
    benchmark::RunSpecifiedBenchmarks(&measures);
    measures.printRatio("patient with 200 records", "openPatient", "bareQueries", LIMIT);
    std::printf("%-44s median %9.3f ms  limit %.0f ms  %s\n", "ribbon of the module", ribbon, RIBBON_LIMIT,
                ribbon >= 0 && ribbon <= RIBBON_LIMIT ? "ok" : "TOO SLOW");
    return 0;
}
