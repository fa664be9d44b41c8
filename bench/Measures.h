#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

/// Repeats every benchmark, in turns with its floor, and keeps the times for the summary lines, which stand on medians.
/// Times are of this process, so that a busy machine counts for little. The table shows the medians alone.
class Measures : public benchmark::ConsoleReporter {
public:
    /// In the place of benchmark::Initialize; what the command line asks for goes before the usual repetitions.
    static void initialize(int& argc, char** argv);

    void ReportRuns(const std::vector<Run>& runs) override;

    double median(const std::string& name) const; ///< Nanoseconds of "function/argument"; 0 when it did not run.
    /// One line: measure, floor, ratio and limit.
    void printRatio(const char* what, const std::string& measured, const std::string& floor, double limit) const;

    /// One line: measure and limit, in milliseconds.
    void printLimit(const char* what, const std::string& measured, double limit) const;

private:
    std::map<std::string, std::vector<double>> times_;
};

/// Largest memory that the process has held, in MiB.
double peakMemory();
