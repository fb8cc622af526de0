#include "records/recipefiles/OwnRecipeJson.h"

#include "model/Nutrients.h"
#include "records/recipefiles/IngredientLabel.h"

#include <QJsonArray>

namespace {
QJsonObject WrittenIngredient(const FinishedIngredient& ingredient) {
    QJsonObject amounts;
    for (qsizetype i = 0; const Nutrient id : StoredOrder())
        amounts[QLatin1String(Info(id).property)] =
            QJsonValue::fromVariant(ingredient.amounts[i++]);
    return {{"name", QJsonValue::fromVariant(ingredient.name)},
            {"serving", QJsonValue::fromVariant(ingredient.serving)},
            {"quantity", QJsonValue::fromVariant(ingredient.quantity)},
            {"amounts", amounts}};
}

QVariant Kept(const QJsonValue& value, bool isNumber) {
    const bool fits = isNumber ? value.isDouble() : value.isString();
    return fits ? value.toVariant() : QVariant();
}

FinishedIngredient ReadIngredient(const QJsonObject& object) {
    FinishedIngredient ingredient{Kept(object["name"], false),
                                  Kept(object["serving"], false),
                                  Kept(object["quantity"], true),
                                  {}};
    for (const Nutrient id : StoredOrder())
        ingredient.amounts << Kept(object["amounts"][QLatin1String(Info(id).property)], true);
    return ingredient;
}
} // namespace

QJsonObject OwnRecipeJson::Write(const RecipeDraft& draft) {
    QJsonObject own;
    for (const RecipeFieldInfo& field : RecipeFields())
        own[QLatin1String(field.column)] = QJsonValue::fromVariant(draft.values[field.id]);
    QJsonArray ingredients;
    for (const IngredientLine& line : draft.ingredients)
        ingredients.append(WrittenIngredient(*line.finished));
    own["ingredients"] = ingredients;
    return own;
}

RecipeDraft OwnRecipeJson::Read(const QJsonObject& own) {
    RecipeDraft draft;
    draft.isOwn = true;
    for (const RecipeFieldInfo& field : RecipeFields())
        draft.values[field.id] = Kept(own[QLatin1String(field.column)], field.isNumber);
    for (const QJsonValue one : own["ingredients"].toArray()) {
        const FinishedIngredient ingredient = ReadIngredient(one.toObject());
        draft.ingredients.append({IngredientLabel(ingredient), ingredient});
    }
    return draft;
}
