#include "records/why/RecipeOrigin.h"

#include "foods/ScaledFood.h"
#include "records/KeyText.h"
#include "runtime/Convert.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <QJsonArray>

namespace {
Recordset IngredientsOf(qint32 recipeID) {
    return {UserDB(),
            QStringLiteral("SELECT * FROM Ingredients WHERE RecipeID = %1").arg(recipeID)};
}

QString NameOf(const Recordset& ingredient) {
    return ingredient[QStringLiteral("FoodName")].Text() + u", " +
           ingredient[QStringLiteral("Serving")].Text() + u" (x " +
           DecimalText(ingredient[QStringLiteral("QTY")].NumberOr(1)) + u')';
}

Explanation::Row RowOf(Recordset& ingredients, Nutrient nutrient, double sum) {
    Explanation::Row row{nutrient,
                         Explanation::Amount(sum, nutrient),
                         QStringLiteral("the sum of the ingredients"),
                         {},
                         Explanation::FactsOf(nutrient)};
    QJsonArray parts;
    for (ingredients.MoveFirst(); !ingredients.AtEnd(); ingredients.MoveNext()) {
        const double part = ingredients[QLatin1String(Info(nutrient).logColumn)].NumberOr(0);
        row.details << Explanation::Amount(part, nutrient) + ": " + NameOf(ingredients);
        parts.append(QJsonObject{{"ingredient", NameOf(ingredients)}, {"amount", part}});
    }
    row.facts["amount"] = sum;
    row.facts["ingredients"] = parts;
    return row;
}
} // namespace

Explanation RecipeOrigin::Of(qint32 recipeID) {
    const ScaledFood whole = ScaledFood::FromRecipe(recipeID, 1);
    const QString name = whole.Text(QStringLiteral("FOODNAME"));
    Recordset ingredients = IngredientsOf(recipeID);
    Explanation explanation{
        name + u" (" + KeyText::Of(KeyText::Recipe, recipeID) + u')',
        {QStringLiteral("A recipe of your own: row %1 of Recipes in users.mdb, and %2 rows of "
                        "Ingredients.")
             .arg(recipeID)
             .arg(ingredients.RecordCount()),
         QStringLiteral("Amounts in the whole recipe:")},
        {{"kind", "recipe"}, {"key", recipeID}, {"name", name}},
        {}};
    for (const Nutrient nutrient : PeriodOrder())
        explanation.rows.push_back(
            RowOf(ingredients, nutrient, whole.Amount(QLatin1String(Info(nutrient).logColumn))));
    return explanation;
}
