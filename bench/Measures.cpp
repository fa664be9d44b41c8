#include "Measures.h"

#include "Median.h"

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

void Measures::initialize(int& argc, char** argv) {
    static std::vector<std::string> usual{"--benchmark_repetitions=7", "--benchmark_min_time=0.1",
                                          "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments{argv[0]};
    for (std::string& argument : usual)
        arguments.push_back(argument.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    // What is left is not for the benchmarks.
    std::copy_n(arguments.begin(), count, argv);
    argc = count;
}

void Measures::ReportRuns(const std::vector<Run>& runs) {
    std::vector<Run> shown;
    for (const Run& run : runs) {
        if (run.error_occurred || run.repetitions < 2 || run.aggregate_name == "median") shown.push_back(run);
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        const std::string& arguments = run.run_name.args;
        const std::string name = run.run_name.function_name + (arguments.empty() ? "" : "/" + arguments);
        times_[name].push_back(run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9);
    }
    if (!shown.empty()) ConsoleReporter::ReportRuns(shown);
}

double Measures::median(const std::string& name) const {
    const auto found = times_.find(name);
    return found == times_.end() ? 0 : medianOf(found->second);
}

void Measures::printRatio(const char* what, const std::string& measured, const std::string& floor, double limit) const {
    if (median(measured) <= 0 || median(floor) <= 0) return;
    const double ratio = median(measured) / median(floor);
    std::printf("%-44s median %9.3f ms  floor %9.3f ms  ratio %5.2f  limit %4.1f  %s\n", what, median(measured) / 1e6,
                median(floor) / 1e6, ratio, limit, ratio <= limit ? "ok" : "TOO SLOW");
}

void Measures::printLimit(const char* what, const std::string& measured, double limit) const {
    const double milliseconds = median(measured) / 1e6;
    if (milliseconds <= 0) return;
    std::printf("%-44s median %9.3f ms  limit %.0f ms  %s\n", what, milliseconds, limit,
                milliseconds <= limit ? "ok" : "TOO SLOW");
}

double peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}
