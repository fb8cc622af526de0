#include "Ground.h"
#include "Table.h"

#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "store/Connection.h"
#include "store/Dialect.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int RowsRead = 201;

void SearchOurs(benchmark::State& state, const char* term) {
    const Ground ground(false);
    for (auto _ : state) {
        const FoodList foods =
            FoodSearch::Find(SearchTerms(QString::fromLatin1(term)), {true, true, true});
        benchmark::DoNotOptimize(foods.Count());
    }
}

/// A connection of its own, with the LIKE that the store comes with.
SQLite::Database Bare(const Connection& connection) {
    return SQLite::Database(connection.Path().toStdString(), SQLite::OPEN_READONLY);
}

void ReadRows(SQLite::Database& database, const QString& source) {
    QString sql = Dialect::Adapt(source, false).sql;
    SQLite::Statement statement(database, sql.toStdString());
    for (int row = 0; row < RowsRead && statement.executeStep(); ++row)
        for (int i = 0; i < statement.getColumnCount(); ++i)
            benchmark::DoNotOptimize(statement.getColumn(i).getText());
}

void SearchLimit(benchmark::State& state, const char* term) {
    const Ground ground(false);
    SQLite::Database users = Bare(UserDB());
    SQLite::Database foods = Bare(FoodDB());
    const SearchTerms terms(QString::fromLatin1(term));
    for (auto _ : state) {
        ReadRows(users, terms.RecipeSQL());
        ReadRows(foods, terms.CustomSQL());
        ReadRows(foods, terms.StockSQL());
    }
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("search of one word, three sources", 2);
    Table::Aim("search of three words, three sources", 2);
    return true;
}();
} // namespace

BENCHMARK_CAPTURE(SearchOurs, one, "milk")->Name("search of one word, three sources/ours");
BENCHMARK_CAPTURE(SearchLimit, one, "milk")->Name("search of one word, three sources/limit");
BENCHMARK_CAPTURE(SearchOurs, three, "milk whole dry")
    ->Name("search of three words, three sources/ours");
BENCHMARK_CAPTURE(SearchLimit, three, "milk whole dry")
    ->Name("search of three words, three sources/limit");
