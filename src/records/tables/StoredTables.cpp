#include "records/tables/StoredTables.h"

#include "model/User.h"
#include "records/tables/NutrientColumns.h"
#include "store/Connection.h"
#include "store/RowReader.h"
#include "store/Schema.h"

namespace {
using StoredTable = ReaderTable<RowReader>;

/// How a column shows what the store holds.
enum class As { Text, Number, Day };

struct StoredColumn {
    TableColumn head;
    QString source; ///< an expression of the statement
    As as = As::Number;
};
using StoredColumns = std::vector<StoredColumn>;

Cell CellAt(const RowReader& row, int place, As as) {
    switch (as) {
    case As::Text:
        return CellOf(row.Text(place));
    case As::Day:
        return CellOf(row.Day(place));
    default:
        return CellOf(row.Number(place));
    }
}

std::unique_ptr<RecordsTable> TableOf(Connection& connection, const StoredColumns& columns,
                                      const QString& from) {
    QStringList sources;
    for (const StoredColumn& column : columns)
        sources << column.source;
    auto table = std::make_unique<StoredTable>(
        RowReader(connection, u"SELECT " + sources.join(u", ") + u" FROM " + from));
    int place = 0;
    for (const StoredColumn& column : columns) {
        table->Add(column.head, [place, as = column.as](const RowReader& row) {
            return CellAt(row, place, as);
        });
        ++place;
    }
    return table;
}

void AddNutrients(StoredColumns& columns, const QString& source, const char* NutrientInfo::*name) {
    for (const Nutrient id : PeriodOrder())
        columns.push_back({NutrientColumns::Of(id), source.arg(QLatin1String(Info(id).*name))});
}

QString OfUser() {
    return QStringLiteral(" WHERE UID=") + QString::number(User::Current().UID);
}

const QString WhatAFoodIs =
    QStringLiteral("CASE WHEN ID <= %1 THEN 'stock' ELSE 'own' END").arg(Schema::LastStockFood);
/// The amounts of a stock food are for 100 grams, those of an own food for a serving.
const QString WhatAmountsAreFor =
    QStringLiteral("CASE WHEN ID <= %1 THEN '100 g' ELSE 'serving' END").arg(Schema::LastStockFood);
const QString Gender = QStringLiteral("CASE gender WHEN 0 THEN 'female' WHEN 1 THEN 'male' END");
const QString Activity = QStringLiteral("CASE activity_level WHEN 0 THEN 'sedentary' WHEN 1 THEN "
                                        "'low' WHEN 2 THEN 'medium' WHEN 3 THEN 'high' END");
/// One line for each ingredient.
const QString IngredientLines = QStringLiteral(
    "(SELECT group_concat(line, char(10)) FROM (SELECT printf('%g x %s %s', QTY, Serving, "
    "FoodName) AS line FROM Ingredients WHERE RecipeID = R.RecipeID ORDER BY ID))");
} // namespace

std::unique_ptr<RecordsTable> StoredTables::Weights(const Period& period) {
    return TableOf(
        UserDB(),
        {{{"Date", "", "date"}, "UDate", As::Day}, {{"Weight", "lb", "weight"}, "Weight"}},
        u"USER_WEIGHTS" + OfUser() + u" AND Weight > 0 AND " + period.Condition() +
            u" ORDER BY UDate, rowid");
}

std::unique_ptr<RecordsTable> StoredTables::Foods(const Period&) {
    StoredColumns columns{
        {{"Key", "", "key"}, "ID"},
        {{"Kind", "", "kind"}, WhatAFoodIs, As::Text},
        {{"Release number", "", "releaseNumber"}, "NDB_No", As::Text},
        {{"Food", "", "food"}, "FoodName", As::Text},
        {{"Serving A", "", "servingA"}, "Serv_Desc_A", As::Text},
        {{"Serving A", "g", "gramsA"}, "Serv_GM_WT_A"},
        {{"Serving B", "", "servingB"}, "Serv_Desc_B", As::Text},
        {{"Serving B", "g", "gramsB"}, "Serv_GM_WT_B"},
        {{"Amounts for", "", "amountsFor"}, WhatAmountsAreFor, As::Text},
    };
    AddNutrients(columns, QStringLiteral("%1"), &NutrientInfo::profileColumn);
    return TableOf(FoodDB(), columns, QStringLiteral("FOODS ORDER BY ID"));
}

std::unique_ptr<RecordsTable> StoredTables::Recipes(const Period&) {
    StoredColumns columns{
        {{"Key", "", "key"}, "R.RecipeID"},
        {{"Recipe", "", "recipe"}, "R.RecipeName", As::Text},
        {{"Serving", "", "serving"}, "R.ServingName", As::Text},
        {{"Yield", "", "yield"}, "R.RecipeYield"},
        {{"Preparation time", "min", "preparationTime"}, "R.PrepTime"},
        {{"Ingredients", "", "ingredients"}, IngredientLines, As::Text},
        {{"Instructions", "", "instructions"}, "R.Instructions", As::Text},
    };
    AddNutrients(columns, QStringLiteral("Sum(I.%1)"), &NutrientInfo::logColumn);
    return TableOf(UserDB(), columns,
                   QStringLiteral("Recipes AS R LEFT JOIN Ingredients AS I ON I.RecipeID = "
                                  "R.RecipeID GROUP BY R.RecipeID ORDER BY R.RecipeID"));
}

std::unique_ptr<RecordsTable> StoredTables::Profile(const Period&) {
    StoredColumns columns{
        {{"Key", "", "key"}, "UID"},
        {{"Name", "", "name"}, "UserName", As::Text},
        {{"Gender", "", "gender"}, Gender, As::Text},
        {{"Age", "years", "age"}, "age"},
        {{"Height", "in", "height"}, "height"},
        {{"Current weight", "lb", "currentWeight"}, "current_weight"},
        {{"Desired weight", "lb", "desiredWeight"}, "desired_weight"},
        {{"Activity", "", "activity"}, Activity, As::Text},
    };
    AddNutrients(columns, QStringLiteral("%1"), &NutrientInfo::profileColumn);
    return TableOf(UserDB(), columns, u"profiles" + OfUser());
}
