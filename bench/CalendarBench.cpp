#include "Ground.h"
#include "Table.h"

#include "analysis/ui/ucCal_LG.h"
#include "model/User.h"
#include "store/Connection.h"
#include "toolkit/DropItem.h"
#include "toolkit/ucDropDown.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr auto Work = "month change, ten-year log, painting left out";
constexpr int WeighedEvery = 3; // days

void WeighIn() {
    SQLite::Transaction transaction(UserDB().Raw());
    SQLite::Statement insert(UserDB().Raw(), "INSERT INTO USER_WEIGHTS VALUES (?, ?, 160)");
    for (int day = 0; day < Ground::Days; day += WeighedEvery) {
        insert.bind(1, User::Current().UID);
        insert.bind(2, Ground::Day(day).toString(Qt::ISODate).toStdString());
        insert.exec();
        insert.reset();
    }
    transaction.commit();
}

/// The item of a list with this number.
DropItem* ItemOf(const ucCal_LG& calendar, const char* list, int number) {
    const auto items = calendar.findChild<ucDropDown*>(list)->findChildren<DropItem*>();
    for (DropItem* item : items)
        if (item->Tag() == QString::number(number))
            return item;
    return nullptr;
}

void MonthOurs(benchmark::State& state) {
    const Ground ground(true);
    WeighIn();
    ucCal_LG calendar;
    calendar.show();
    ItemOf(calendar, "ucYear", 2020)->Activate();
    DropItem* months[12];
    for (int month = 1; month <= 12; ++month)
        months[month - 1] = ItemOf(calendar, "ucMonth", month);
    int index = 0;
    for (auto _ : state)
        months[index++ % 12]->Activate();
}

/// Reads the month's days with a bare connection, every value.
void ReadMonth(const char* table, QDate first) {
    const QDate last(first.year(), first.month(), first.daysInMonth());
    SQLite::Statement statement(
        UserDB().Raw(), std::string(table) + " WHERE UID=" + std::to_string(User::Current().UID) +
                            " AND UDate BETWEEN '" + first.toString(Qt::ISODate).toStdString() +
                            "' AND '" + last.toString(Qt::ISODate).toStdString() + "'");
    while (statement.executeStep())
        for (int i = 0; i < statement.getColumnCount(); ++i)
            benchmark::DoNotOptimize(statement.getColumn(i).getText());
}

void MonthLimit(benchmark::State& state) {
    const Ground ground(true);
    WeighIn();
    int index = 0;
    for (auto _ : state) {
        const QDate first(2020, 1 + index++ % 12, 1);
        ReadMonth("SELECT DISTINCT UDate FROM USER_FOODS", first);
        ReadMonth("SELECT * FROM USER_WEIGHTS", first);
    }
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim(Work, 3);
    return true;
}();
} // namespace

BENCHMARK(MonthOurs)->Name(std::string(Work) + "/ours");
BENCHMARK(MonthLimit)->Name(std::string(Work) + "/limit");
