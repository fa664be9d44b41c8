#include "Floor.h"
#include "Measures.h"
#include "PlanSample.h"

#include "platform/XmlReading.h"
#include "treatments/TreatmentMemo.h"

#include <QCoreApplication>

// Reading and writing the memo of one treatment plan, against libxml2's bare parse of the same memo.

namespace {

constexpr int ROWS = 12;
constexpr double READ_LIMIT = 1.25;
constexpr double WRITE_LIMIT = 2;

const QString& memo() {
    static const QString text = writeTreatmentMemo(planSample(ROWS, 1));
    return text;
}

void bareRead(benchmark::State& state) {
    const QByteArray utf8 = memo().toUtf8();
    for (auto _ : state)
        benchmark::DoNotOptimize(readBare(utf8));
}

/// Every attribute by name, as the records ask for them, but nothing decoded.
void platformRead(benchmark::State& state) {
    static const char* const names[] = {"progressivo", "denti",      "servizio",        "descrizione", "ragruppamento",
                                        "operatore",   "assistente", "inizioLavori",    "fineLavori",  "statusLavori",
                                        "fattura",     "prezzo",     "fuoriPreventivo", "note"};
    for (auto _ : state) {
        const platform::XmlReading reading(memo());
        const auto rows = reading.root().firstChild("righi");
        qsizetype length = 0;
        for (auto row = rows.firstChild("rigo"); row; row = row.nextSibling("rigo")) {
            for (const char* name : names)
                length += row.attribute(name, QString()).size();
        }
        benchmark::DoNotOptimize(length);
    }
}

void planRead(benchmark::State& state) {
    for (auto _ : state) {
        clsItemTrattamento plan;
        readTreatmentMemo(plan, memo());
        benchmark::DoNotOptimize(plan.lavori);
    }
}

void planWrite(benchmark::State& state) {
    const clsItemTrattamento plan = planSample(ROWS, 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(writeTreatmentMemo(plan).size());
}

BENCHMARK(bareRead);
BENCHMARK(platformRead);
BENCHMARK(planRead);
BENCHMARK(planWrite);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Measures::initialize(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) || readBare(memo().toUtf8()) == 0) return 1;
    Measures measures;
    benchmark::RunSpecifiedBenchmarks(&measures);
    std::printf("\nmemo of %d rows, %lld characters\n", ROWS, static_cast<long long>(memo().size()));
    measures.printRatio("attributes through the platform", "platformRead", "bareRead", READ_LIMIT);
    measures.printRatio("DeserializzaMEMO", "planRead", "bareRead", READ_LIMIT);
    measures.printRatio("SerializzaMEMO", "planWrite", "bareRead", WRITE_LIMIT);
    return 0;
}
