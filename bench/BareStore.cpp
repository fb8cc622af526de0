#include "BareStore.h"

#include "foods/SearchTerms.h"
#include "store/Connection.h"
#include "store/Dialect.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <benchmark/benchmark.h>

static constexpr int SearchRowsRead = 201;

SQLite::Database BareStore::Open(const Connection& connection) {
    return SQLite::Database(connection.Path().toStdString(), SQLite::OPEN_READONLY);
}

void BareStore::Read(SQLite::Database& database, const std::string& sql, int most) {
    SQLite::Statement statement(database, sql);
    for (int row = 0; row != most && statement.executeStep(); ++row)
        for (int i = 0; i < statement.getColumnCount(); ++i)
            benchmark::DoNotOptimize(statement.getColumn(i).getText());
}

std::string BareStore::SumsOf(std::span<const Nutrient> nutrients) {
    std::string sums;
    for (const Nutrient id : nutrients)
        sums += (sums.empty() ? "SELECT Sum(" : ",Sum(") + std::string(Info(id).logColumn) + ")";
    return sums + " FROM USER_FOODS";
}

void BareStore::Search(SQLite::Database& users, SQLite::Database& foods, const SearchTerms& terms) {
    const auto read = [](SQLite::Database& database, const QString& source) {
        Read(database, Dialect::Adapt(source, false).sql.toStdString(), SearchRowsRead);
    };
    read(users, terms.RecipeSQL());
    read(foods, terms.CustomSQL());
    read(foods, terms.StockSQL());
}
