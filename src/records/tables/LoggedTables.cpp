#include "records/tables/LoggedTables.h"

#include "model/User.h"
#include "records/tables/DayReading.h"
#include "records/tables/NutrientColumns.h"

namespace {
using LogTable = ReaderTable<LogReading>;
using DayTable = ReaderTable<DayReading>;

constexpr double Hundred = 100;
const QString Percent = QStringLiteral("%");

template <class Reader, class Result>
void Add(ReaderTable<Reader>& table, TableColumn column, Result (Reader::*value)() const) {
    table.Add(std::move(column), [value](const Reader& row) { return CellOf((row.*value)()); });
}

std::optional<double> InPercent(std::optional<double> part, double whole = 1) {
    return part && whole != 0 ? std::optional(*part / whole * Hundred) : std::nullopt;
}

void AddNutrient(DayTable& table, Nutrient id) {
    using namespace NutrientColumns;
    const double target = User::Current().RDIs[id];
    table.Add(Of(id), [id](const DayReading& day) { return CellOf(day.Totals().Amount(id)); });
    table.Add(Of(id, "target", Unit(id)), [target](const DayReading&) { return Cell(target); });
    table.Add(Of(id, "percent", Percent), [id, target](const DayReading& day) {
        return CellOf(InPercent(day.Totals().Amount(id), target));
    });
    table.Add(Of(id, "coverage", Percent),
              [id](const DayReading& day) { return CellOf(InPercent(day.Totals().Coverage(id))); });
}
} // namespace

std::unique_ptr<RecordsTable> LoggedTables::Log(const Period& period) {
    auto table = std::make_unique<LogTable>(LogReading(period));
    Add(*table, {"Date", "", "date"}, &LogReading::Day);
    Add(*table, {"Meal", "", "meal"}, &LogReading::Meal);
    Add(*table, {"Food", "", "food"}, &LogReading::FoodName);
    Add(*table, {"Serving", "", "serving"}, &LogReading::Serving);
    Add(*table, {"Quantity", "", "quantity"}, &LogReading::Quantity);
    Add(*table, {"Key", "", "key"}, &LogReading::Key);
    Add(*table, {"Release number", "", "releaseNumber"}, &LogReading::ReleaseNumber);
    for (const Nutrient id : PeriodOrder())
        table->Add(NutrientColumns::Of(id),
                   [id](const LogReading& entry) { return CellOf(entry.Amount(id)); });
    return table;
}

std::unique_ptr<RecordsTable> LoggedTables::Days(const Period& period) {
    auto table = std::make_unique<DayTable>(DayReading(period));
    Add(*table, {"Date", "", "date"}, &DayReading::Day);
    table->Add({"Entries", "", "entries"},
               [](const DayReading& day) { return Cell(double(day.Totals().Entries())); });
    table->Add({"Logged", "g", "grams"},
               [](const DayReading& day) { return Cell(day.Totals().Grams()); });
    for (const Nutrient id : PeriodOrder())
        AddNutrient(*table, id);
    return table;
}
