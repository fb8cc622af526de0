#include "foods/FoodSearch.h"

#include "foods/SearchTerms.h"
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
