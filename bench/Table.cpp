#include "Table.h"

#include "SpeedFile.h"

#include <cstdio>

namespace {
constexpr double NanosecondsAMillisecond = 1e6;

std::map<std::string, double>& Aims() {
    static std::map<std::string, double> aims;
    return aims;
}
} // namespace

void Table::Aim(const std::string& work, double ratio) {
    Aims()[work] = ratio;
}

void Table::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median")
            continue;
        const std::string name = run.run_name.function_name;
        const size_t slash = name.rfind('/');
        const std::string work = name.substr(0, slash);
        if (!pairs_.contains(work))
            order_.push_back(work);
        (name.substr(slash + 1) == "ours" ? pairs_[work].ours : pairs_[work].limit) =
            run.GetAdjustedRealTime() / NanosecondsAMillisecond;
    }
}

void Table::Finalize() {
    std::printf("%-46s %12s %12s %8s %8s\n", "work", "ours (ms)", "limit (ms)", "ratio", "aim");
    for (const std::string& work : order_) {
        const Pair& pair = pairs_[work];
        std::printf("%-46s %12.3f %12.3f %8.2f %8.2f\n", work.c_str(), pair.ours, pair.limit,
                    pair.ours / pair.limit, Aims()[work]);
        SpeedFile::Add(QString::fromStdString(work), QStringLiteral("ms"), pair.ours, pair.limit,
                       Aims()[work]);
    }
}
