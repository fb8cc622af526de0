#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints one line a work: ours, the limit it is set against, their ratio and the aim.
/// Benchmarks come in pairs named "WORK/ours" and "WORK/limit"; the median of the repetitions
/// counts.
class Table : public benchmark::BenchmarkReporter {
public:
    /// Says what the ratio of a work should be at most.
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
