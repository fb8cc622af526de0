#include "foods/FoodSearch.h"

#include "foods/NarrowedSearch.h"
#include "foods/SearchTerms.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>

namespace {
/// All statements give name, key and first serving at the same positions. Only a food has a second
/// serving.
void ReadSource(FoodList& foods, Connection& connection, const QString& source, bool recipes) {
    Recordset rows(connection, source);
    const int count = std::min(rows.RecordCount(), FoodSearch::MostOfASource);
    for (int row = 0; row < count; ++row, rows.MoveNext())
        if (rows[1].IsKey())
            foods.Add(rows[0].Text(), recipes, rows[1].Integer(), rows[2].Value(),
                      recipes ? QVariant(QString()) : rows[3].Value());
}

/// Returns whether it has read them; if not, it has added nothing.
bool ReadNarrowed(FoodList& foods, const std::optional<NarrowedSearch>& search,
                  NarrowedSearch::Part part) {
    QString statement;
    return search && Attempt([&] { statement = search->Statement(part); }) &&
           !statement.isEmpty() && Attempt([&] { ReadSource(foods, FoodDB(), statement, false); });
}

void ReadCatalogue(FoodList& foods, const SearchTerms& terms, FoodSearch::Sources sources) {
    using enum NarrowedSearch::Part;
    std::optional<NarrowedSearch> search;
    Attempt([&] { search.emplace(terms); });
    if (sources.custom && !ReadNarrowed(foods, search, Own))
        ReadSource(foods, FoodDB(), terms.CustomSQL(), false);
    if (sources.stock && !ReadNarrowed(foods, search, Stock))
        ReadSource(foods, FoodDB(), terms.StockSQL(), false);
}
} // namespace

FoodList FoodSearch::Find(const SearchTerms& terms, const Sources& sources) {
    FoodList foods;
    if (sources.recipes)
        ReadSource(foods, UserDB(), terms.RecipeSQL(), true);
    if (sources.custom || sources.stock)
        ReadCatalogue(foods, terms, sources);
    return foods;
}

std::optional<Food> FoodSearch::WithKey(qint32 key, bool isRecipe) {
    const QString number = QString::number(key);
    FoodList foods;
    if (isRecipe)
        ReadSource(foods, UserDB(),
                   "SELECT RecipeName,RecipeID,ServingName FROM Recipes WHERE RecipeID = " + number,
                   true);
    else
        ReadSource(foods, FoodDB(),
                   "SELECT FoodName,ID,Serv_Desc_A,Serv_Desc_B FROM FOODS WHERE ID = " + number,
                   false);
    if (foods.Count() == 0)
        return {};
    return foods.Item(1);
}

QString FoodSearch::NoMatch() {
    return QStringLiteral("No foods or recipes matched your search term.");
}
