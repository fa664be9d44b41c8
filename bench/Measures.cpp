#include "Measures.h"

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

void Measures::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations) * 1e9;
        const std::string& arguments = run.run_name.args;
        const std::string name = run.run_name.function_name + (arguments.empty() ? "" : "/" + arguments);
        const auto [place, first] = best_.try_emplace(name, time);
        if (!first) place->second = std::min(place->second, time);
    }
    ConsoleReporter::ReportRuns(runs);
}

double Measures::best(const std::string& name) const {
    const auto found = best_.find(name);
    return found == best_.end() ? 0 : found->second;
}

void Measures::printRatio(const char* what, const std::string& measured, const std::string& floor, double limit) const {
    if (best(measured) <= 0 || best(floor) <= 0) return;
    const double ratio = best(measured) / best(floor);
    std::printf("%-44s %12.1f us  floor %12.1f us  ratio %5.2f  limit %.1f  %s\n", what, best(measured) / 1e3,
                best(floor) / 1e3, ratio, limit, ratio <= limit ? "ok" : "TOO SLOW");
}

void Measures::printLimit(const char* what, const std::string& measured, double limit) const {
    const double milliseconds = best(measured) / 1e6;
    if (milliseconds <= 0) return;
    std::printf("%-44s %9.2f ms  limit %.0f ms  %s\n", what, milliseconds, limit,
                milliseconds <= limit ? "ok" : "TOO SLOW");
}

double peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}
