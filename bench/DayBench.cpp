#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "analysis/ui/ucDaily.h"
#include "foods/ScaledFood.h"
#include "intake/ui/ucMyFood.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
/// The list and the panel of the day screen, visible.
struct DayParts {
    ucMyFood list;
    ucDaily panel;

    DayParts() {
        list.resize(390, 450);
        panel.resize(338, 476);
        list.show();
        panel.show();
    }
};

void DayChangeOurs(benchmark::State& state) {
    const Ground ground(true);
    DayParts day;
    int index = 0;
    for (auto _ : state) {
        day.list.setDate(Ground::Day(index));
        day.panel.setDate(Ground::Day(index));
        index += 37;
    }
}

void DayChangeLimit(benchmark::State& state) {
    const Ground ground(true);
    int index = 0;
    for (auto _ : state) {
        const std::string day = Ground::Day(index).toString(Qt::ISODate).toStdString();
        const std::string uid = std::to_string(User::Current().UID);
        for (const char* meal : {"BREAKFAST", "LUNCH", "DINNER", "SNACKS"})
            BareStore::Read(UserDB().Raw(), "SELECT * FROM USER_FOODS WHERE UID =" + uid +
                                                " AND MEAL = '" + meal + "' AND UDate = '" + day +
                                                "'");
        BareStore::Read(UserDB().Raw(), BareStore::SumsOf(CanonicalOrder()) + " WHERE UID=" + uid +
                                            " AND UDate = '" + day + "'");
        index += 37;
    }
}

void LogFoodOurs(benchmark::State& state) {
    const Ground ground(false);
    DayParts day;
    day.list.setDate(Ground::Day(0));
    const ScaledFood item = ScaledFood::FromCatalogue(23508, QStringLiteral("A"), 1);
    int count = 0;
    for (auto _ : state) {
        day.list.AddFood(item, QStringLiteral("Lunch"));
        if (++count % 15 != 0)
            continue;
        state.PauseTiming(); // changing the day is another benchmark
        day.list.setDate(Ground::Day(count / 15));
        state.ResumeTiming();
    }
}

void LogFoodLimit(benchmark::State& state) {
    const Ground ground(false);
    std::string columns;
    std::string values;
    for (const NutrientInfo& row : Nutrients()) {
        columns += std::string(row.logColumn) + ", ";
        values += "1.5, ";
    }
    for (auto _ : state) {
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO USER_FOODS (" + columns +
                                     "UID, FoodName, Serving, ID, Meal, UDate, QTY) VALUES (" +
                                     values + "1, 'Oats', '1 cup', 1, 'Lunch', '2026-11-21', 1)");
        insert.exec();
    }
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("day change, ten-year log, list and panel", 3);
    Table::Aim("log one food, commit included", 2);
    return true;
}();
} // namespace

BENCHMARK(DayChangeOurs)->Name("day change, ten-year log, list and panel/ours");
BENCHMARK(DayChangeLimit)->Name("day change, ten-year log, list and panel/limit");
BENCHMARK(LogFoodOurs)->Name("log one food, commit included/ours");
BENCHMARK(LogFoodLimit)->Name("log one food, commit included/limit");
