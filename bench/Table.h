#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints a line for each benchmark: ours, the limit, their ratio and the aim. Benchmarks come in
/// pairs, "WORK/ours" and "WORK/limit"; the median of the repetitions counts.
class Table : public benchmark::BenchmarkReporter {
public:
    /// Sets the greatest ratio that a benchmark should have.
    static void Aim(const std::string& work, double ratio);

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Pair {
        double ours = 0;
        double limit = 0;
    };
    std::map<std::string, Pair> pairs_;
    std::vector<std::string> order_;
};
