#include "foods/FoodSearch.h"

#include "foods/SearchTerms.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>

namespace {
constexpr int LastRowRead = 200;

/// All three statements give name, key and first serving at the same positions. Only a food has a
/// second serving.
void ReadSource(FoodList& foods, Connection& connection, const QString& source, bool recipes) {
    Recordset rows(connection, source);
    const int last = std::min(rows.RecordCount() - 1, LastRowRead);
    for (int row = 0; row <= last; ++row, rows.MoveNext())
        if (rows[1].IsKey())
            foods.Add(rows[0].Text(), recipes, rows[1].Integer(), rows[2].Value(),
                      recipes ? QVariant(QString()) : rows[3].Value());
}
} // namespace

FoodList FoodSearch::Find(const SearchTerms& terms, const Sources& sources) {
    FoodList foods;
    if (sources.recipes)
        ReadSource(foods, UserDB(), terms.RecipeSQL(), true);
    if (sources.custom)
        ReadSource(foods, FoodDB(), terms.CustomSQL(), false);
    if (sources.stock)
        ReadSource(foods, FoodDB(), terms.StockSQL(), false);
    return foods;
}
