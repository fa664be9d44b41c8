#include "Median.h"

#include "desk/data/Database.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/Transaction.h"
#include "desk/people/PatientSearch.h"
#include "desk/shell/DeskApplication.h"
#include "desk/shell/DeskLog.h"
#include "platform/Theme.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <vector>

/// How soon the patient search answers a keystroke among 50,000 patients: the directory alone, and the window with its
/// list filled. The limit is one frame, at the median of many searches.

namespace {

constexpr int PATIENTS = 50'000;
constexpr double LIMIT = 16.0; ///< Milliseconds.
constexpr int ROUNDS = 15;

constexpr std::array SURNAMES{"Rossi",   "Russo",    "Ferrari", "D'Angelo", "Bianchi", "Romano", "Colombo",
                              "Ricci",   "De Luca",  "Marino",  "Greco",    "Conti",   "Gallo",  "Costa",
                              "Mancini", "Lombardi", "Moretti", "Barbieri", "Fontana", "Santoro"};
constexpr std::array ENDINGS{"", "ni", "lli", "tti", "no", "ro", "sco", "ghi", "ndi", "zzo", "chi", "rio", "sio"};
constexpr std::array NAMES{"Anna",   "Nicol\u00f2", "Maria",  "Luca",    "Giulia",     "Marco", "Zoe",
                           "Franco", "Paola",       "Andrea", "Antonio", "Sof\u00eca", "Ugo"};

/// Pieces as people type them: many, few and none found, from the start and from the middle, several words.
constexpr std::array PIECES{"r",     "ro",        "ros",     "ross", "rossi", "rossi ma", "angel",
                            "d'ang", "zoe gallo", "tti ugo", "xyz",  "a",     ""};

QString pick(const auto& list, int i) {
    return QString::fromUtf8(list[static_cast<std::size_t>(i) % list.size()]);
}

void fill(desk::Database& database) {
    desk::Transaction transaction(database);
    desk::PatientDirectory patients(database, QStringLiteral("prova"));
    for (int i = 0; i < PATIENTS; ++i) {
        desk::PatientData patient;
        patient.Cognome = pick(SURNAMES, i) + pick(ENDINGS, i / 7);
        patient.Nome = pick(NAMES, i / 3);
        patient.codicefiscale = QStringLiteral("TSTPTN%1H501X").arg(i, 5, 10, QLatin1Char('0'));
        patient.dataNascita = QDate(1940, 1, 1).addDays(i % 28'000);
        patient.indirizzo = QStringLiteral("Via Regina Margherita, %1").arg(i % 300);
        patient.citta = QStringLiteral("Roma");
        patient.telefono = QStringLiteral("06 %1").arg(1'000'000 + i);
        patient.note = QStringLiteral("Paziente seguito da tempo, richiamo ogni sei mesi. ").repeated(3);
        patients.insert(patient);
    }
    transaction.commit();
}

struct Times {
    std::vector<double> processor; ///< What the search itself takes: the machine may be busy with other things.
    std::vector<double> wall;      ///< What a person waits.
};

template <class Search>
Times timesOf(Search search) {
    Times times;
    for (int round = 0; round < ROUNDS; ++round) {
        for (const char* piece : PIECES) {
            QElapsedTimer waiting;
            waiting.start();
            const std::clock_t start = std::clock();
            search(QString::fromUtf8(piece));
            times.processor.push_back(static_cast<double>(std::clock() - start) * 1e3 / CLOCKS_PER_SEC);
            times.wall.push_back(static_cast<double>(waiting.nsecsElapsed()) / 1e6);
        }
    }
    return times;
}

void print(const char* what, const Times& times) {
    const double median = medianOf(times.processor);
    std::printf("%-44s median %9.3f ms  worst %6.1f ms  waited %6.1f ms  limit %.0f ms  %s\n", what, median,
                *std::max_element(times.processor.begin(), times.processor.end()), medianOf(times.wall), LIMIT,
                median <= LIMIT ? "ok" : "TOO SLOW");
}

void searchOnce(benchmark::State& state, desk::PatientDirectory& patients, const QString& piece,
                desk::PatientDirectory::Column column) {
    for (auto _ : state)
        benchmark::DoNotOptimize(patients.search(piece, column));
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    desk::log::install();
    desk::DeskApplication application(argc, argv);
    platform::applyTheme(application);
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    const auto database = desk::Database::open(
        desk::DatabaseUrl::parse(QStringLiteral("sqlite:") + folder.filePath(QStringLiteral("studio.db"))));
    fill(*database);
    desk::PatientDirectory patients(*database, QStringLiteral("prova"));

    using Column = desk::PatientDirectory::Column;
    for (const char* piece : PIECES) {
        benchmark::RegisterBenchmark((std::string("name/") + piece).c_str(), [&patients,
                                                                              piece](benchmark::State& state) {
            searchOnce(state, patients, QString::fromUtf8(piece), Column::NameAndSurname);
        })->Unit(benchmark::kMillisecond);
    }
    for (const char* piece : {"tst", "ptn0", "49999", "zzz"}) {
        benchmark::RegisterBenchmark((std::string("code/") + piece).c_str(), [&patients,
                                                                              piece](benchmark::State& state) {
            searchOnce(state, patients, QString::fromUtf8(piece), Column::TaxCode);
        })->Unit(benchmark::kMillisecond);
    }
    benchmark::RunSpecifiedBenchmarks();

    print("search by a piece of the name", timesOf([&](const QString& piece) { patients.search(piece); }));
    desk::PatientSearch window(patients);
    window.start(QString(), QStringLiteral("Cognome e Nome"));
    window.show();
    auto* text = window.findChild<QLineEdit*>(QStringLiteral("tbCerca"));
    // A change that changes nothing would not search: the field is emptied without its signals in between.
    print("the same in the window, list and count shown", timesOf([&](const QString& piece) {
              {
                  const QSignalBlocker silent(text);
                  text->setText(QStringLiteral("\u00a0"));
              }
              text->setText(piece);
              QCoreApplication::processEvents();
          }));
    return 0;
}
