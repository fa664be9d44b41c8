#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>

/// Shows the benchmarks as usual and keeps the shortest time of each, for the summary line that sets a measure against
/// its floor. Times are in nanoseconds of this
/// process, so that a busy machine does not count.
class Measures : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    double best(const std::string& name) const; ///< "function/argument"; 0 when it did not run.
    /// One line: measure, floor, ratio and limit.
    void printRatio(const char* what, const std::string& measured, const std::string& floor, double limit) const;

    /// One line: measure and limit, in milliseconds.
    void printLimit(const char* what, const std::string& measured, double limit) const;

private:
    std::map<std::string, double> best_;
};

/// Largest memory that the process has held, in MiB.
double peakMemory();
