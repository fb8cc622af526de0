#include "records/recipefiles/SchemaRecipes.h"

#include "model/Nutrients.h"
#include "records/recipefiles/OwnRecipeJson.h"
#include "runtime/Convert.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
struct Fact {
    const char* property;
    Nutrient nutrient;
    Nutrient second; ///< added, where it is another one
    const char* unit;
};
constexpr Fact Facts[] = {
    {"calories", Nutrient::Calories, Nutrient::Calories, " kcal"},
    {"fatContent", Nutrient::TotalFat, Nutrient::TotalFat, " g"},
    {"saturatedFatContent", Nutrient::SatFat, Nutrient::SatFat, " g"},
    {"unsaturatedFatContent", Nutrient::MonoFat, Nutrient::PolyFat, " g"},
    {"cholesterolContent", Nutrient::Cholesterol, Nutrient::Cholesterol, " mg"},
    {"sodiumContent", Nutrient::Sodium, Nutrient::Sodium, " mg"},
    {"carbohydrateContent", Nutrient::Carbs, Nutrient::Carbs, " g"},
    {"fiberContent", Nutrient::Fiber, Nutrient::Fiber, " g"},
    {"proteinContent", Nutrient::Protein, Nutrient::Protein, " g"},
};

QJsonObject NutritionOf(const RecipeDraft& draft) {
    QJsonObject nutrition{{"@type", "NutritionInformation"},
                          {"servingSize", draft.values[RecipeField::Serving].toString()}};
    for (const Fact& fact : Facts) {
        const double amount = draft.InServing(fact.nutrient) +
                              (fact.second == fact.nutrient ? 0 : draft.InServing(fact.second));
        nutrition[QLatin1String(fact.property)] =
            QString(QString::number(amount, 'f', 1) + QLatin1String(fact.unit));
    }
    return nutrition;
}

QJsonObject Written(const RecipeDraft& draft) {
    QJsonArray lines;
    for (const IngredientLine& line : draft.ingredients)
        lines.append(line.text);
    QJsonObject recipe{
        {"@context", "https://schema.org"},
        {"@type", "Recipe"},
        {"name", draft.Name()},
        {"recipeYield",
         QString(DecimalText(draft.values[RecipeField::Yield].toDouble()) + u" servings")},
        {"recipeIngredient", lines},
        {"recipeInstructions", draft.values[RecipeField::Instructions].toString()},
        {SchemaRecipes::OwnPart, OwnRecipeJson::Write(draft)}};
    const qint64 minutes = draft.values[RecipeField::Time].toLongLong();
    if (minutes > 0)
        recipe["totalTime"] = QString(u"PT" + QString::number(minutes) + u'M');
    if (!lines.isEmpty())
        recipe["nutrition"] = NutritionOf(draft);
    return recipe;
}
} // namespace

QByteArray SchemaRecipes::Write(const QList<RecipeDraft>& recipes) {
    QJsonArray all;
    for (const RecipeDraft& draft : recipes)
        all.append(Written(draft));
    return QJsonDocument(all).toJson();
}
