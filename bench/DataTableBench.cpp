#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "records/report/PdfReport.h"
#include "records/report/ReportFigures.h"
#include "records/tables/TableKinds.h"
#include "records/tables/TableWriter.h"
#include "store/Connection.h"

#include <QBuffer>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr double MostSecondsOfAReport = 1;
constexpr int Year = 365;

void LogAsCsvOurs(benchmark::State& state) {
    const Ground ground(true);
    for (auto _ : state) {
        size_t bytes = 0;
        const auto writer = TableFormat::Named("csv").make(
            "Log", [&bytes](std::string_view part) { bytes += part.size(); });
        writer->Write(*TableKind::Named("log").make(TableKind::Always()));
        benchmark::DoNotOptimize(bytes);
    }
}

/// Reads each value as what it is stored as.
void LogAsCsvLimit(benchmark::State& state) {
    const Ground ground(true);
    std::string columns = "UDate, Meal, FoodName, Serving, QTY, ID";
    for (const Nutrient id : PeriodOrder())
        columns += std::string(", ") + Info(id).logColumn;
    for (auto _ : state) {
        SQLite::Statement rows(UserDB().Raw(), "SELECT " + columns +
                                                   " FROM USER_FOODS WHERE UID = 1 ORDER BY "
                                                   "UDate, RecID");
        while (rows.executeStep())
            for (int i = 0; i < rows.getColumnCount(); ++i)
                if (const SQLite::Column value = rows.getColumn(i); value.isText())
                    benchmark::DoNotOptimize(value.getText());
                else
                    benchmark::DoNotOptimize(value.getDouble());
    }
}

void PdfOfAYearOurs(benchmark::State& state) {
    const Ground ground(true);
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        PdfReport::Write(buffer, ReportFigures::Of({Ground::Day(0), Ground::Day(Year - 1)}),
                         QPageSize::A4);
        benchmark::DoNotOptimize(buffer.size());
    }
}

void PdfOfAYearLimit(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(MostSecondsOfAReport);
}

[[maybe_unused]] const bool registered = [] {
    Table::Aim("data, log of ten years as CSV", 3);
    Table::Aim("data, report of a year as PDF, 1 s", 1);
    return true;
}();
} // namespace

BENCHMARK(LogAsCsvOurs)->Name("data, log of ten years as CSV/ours");
BENCHMARK(LogAsCsvLimit)->Name("data, log of ten years as CSV/limit");
BENCHMARK(PdfOfAYearOurs)->Name("data, report of a year as PDF, 1 s/ours");
BENCHMARK(PdfOfAYearLimit)->Name("data, report of a year as PDF, 1 s/limit")->UseManualTime();
