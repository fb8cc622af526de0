#include "records/recipefiles/MealieRecipes.h"

#include "records/recipefiles/DurationText.h"
#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/LineText.h"
#include "records/recipefiles/NutritionText.h"
#include "records/recipefiles/Yield.h"
#include "runtime/Convert.h"

#include <QHash>
#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

namespace {
using ForeignJson::Either;

IngredientLine Line(const QJsonObject& ingredient) {
    const QString note = ForeignJson::Of(ingredient["note"]);
    if (Either(ingredient, QStringLiteral("disable_amount")).toBool())
        return {note};
    const QString line =
        LineText::Of(ingredient["quantity"].toDouble(), ForeignJson::Of(ingredient["unit"]),
                     ForeignJson::Of(ingredient["food"]), note);
    if (!line.isEmpty())
        return {line};
    const QString original = ForeignJson::Of(Either(ingredient, QStringLiteral("original_text")));
    return {original.isEmpty() ? ForeignJson::Of(ingredient["display"]) : original};
}

void ReadIngredients(RecipeDraft& draft, const QJsonArray& ingredients) {
    for (const QJsonValue one : ingredients) {
        if (const QString title = ForeignJson::Of(one["title"]); !title.isEmpty())
            draft.ingredients.append({title, std::nullopt, true});
        if (const IngredientLine line =
                one.isString() ? IngredientLine{ForeignJson::Of(one)} : Line(one.toObject());
            !line.text.isEmpty())
            draft.ingredients.append(line);
    }
}

QString Paragraphs(const QJsonArray& steps) {
    QStringList paragraphs;
    for (const QJsonValue step : steps)
        for (const QJsonValue& part : {step["title"], step["text"]})
            if (const QString text = ForeignJson::Plain(part.toString()); !text.isEmpty())
                paragraphs << text;
    return paragraphs.join(u'\n');
}

QVariant TotalMinutes(const QJsonObject& recipe) {
    const auto minutes = [&](const char* name) {
        return MinutesOf(ForeignJson::Of(Either(recipe, QLatin1String(name))));
    };
    if (const auto total = minutes("total_time"))
        return *total;
    const double sum = minutes("prep_time").value_or(0) + minutes("perform_time").value_or(0) +
                       minutes("cook_time").value_or(0);
    return sum > 0 ? QVariant(sum) : QVariant();
}

void ReadRemarks(RecipeDraft& draft, const QJsonObject& recipe) {
    const auto add = [&](const QString& caption, const QString& text) {
        if (!text.isEmpty())
            draft.remarks << QString(caption + u": " + text);
    };
    add(QStringLiteral("About"), ForeignJson::Of(recipe["description"]));
    add(QStringLiteral("Category"),
        ForeignJson::Of(Either(recipe, QStringLiteral("recipe_category"))));
    add(QStringLiteral("Keywords"), ForeignJson::Of(recipe["tags"]));
    for (const char* name : {"org_url", "orgURL"})
        add(QStringLiteral("Source"), ForeignJson::Of(recipe[QLatin1String(name)]));
    for (const QJsonValue note : recipe["notes"].toArray())
        add(QStringLiteral("Note"),
            QString(ForeignJson::Of(note["title"]) + u' ' + ForeignJson::Of(note["text"]))
                .trimmed());
}

// ---- a backup: rows of tables that name each other by their keys ----

using Rows = QHash<QString, QJsonArray>; ///< by the key of their recipe

Rows ByRecipe(const QJsonValue& table) {
    Rows rows;
    for (const QJsonValue row : table.toArray())
        rows[row["recipe_id"].toVariant().toString()].append(row);
    return rows;
}

QJsonArray InOrder(const QJsonArray& rows) {
    QList<QJsonValue> sorted(rows.begin(), rows.end());
    std::ranges::stable_sort(sorted, {},
                             [](const QJsonValue& row) { return row["position"].toDouble(); });
    QJsonArray ordered;
    for (const QJsonValue& row : sorted)
        ordered.append(row);
    return ordered;
}

QHash<QString, QJsonValue> ByKey(const QJsonValue& table) {
    QHash<QString, QJsonValue> rows;
    for (const QJsonValue row : table.toArray())
        rows.insert(row["id"].toVariant().toString(), row);
    return rows;
}

struct Backup {
    Rows ingredients, instructions, nutrition, notes;
    QHash<QString, QJsonValue> foods, units;

    QJsonArray Ingredients(const QString& recipe) const {
        QJsonArray lines;
        for (const QJsonValue row : InOrder(ingredients.value(recipe))) {
            QJsonObject line = row.toObject();
            line["food"] = foods.value(row["food_id"].toVariant().toString());
            line["unit"] = units.value(row["unit_id"].toVariant().toString());
            lines.append(line);
        }
        return lines;
    }
};
} // namespace

bool MealieRecipes::IsRecipe(const QJsonObject& object) {
    return Either(object, QStringLiteral("recipe_ingredient")).isArray() &&
           !object.contains(QLatin1String("@type"));
}

bool MealieRecipes::IsBackup(const QJsonObject& object) {
    return object["recipes"].isArray() && object["recipes_ingredients"].isArray();
}

RecipeDraft MealieRecipes::Read(const QJsonObject& recipe) {
    RecipeDraft draft;
    draft.values[RecipeField::Name] = ForeignJson::Of(recipe["name"]).simplified();
    ReadYield(draft, ForeignJson::Of(Either(recipe, QStringLiteral("recipe_yield"))));
    if (const double servings = Either(recipe, QStringLiteral("recipe_servings")).toDouble();
        servings > 0)
        draft.values[RecipeField::Yield] = servings;
    draft.values[RecipeField::Time] = TotalMinutes(recipe);
    draft.values[RecipeField::Instructions] =
        Paragraphs(Either(recipe, QStringLiteral("recipe_instructions")).toArray());
    ReadIngredients(draft, Either(recipe, QStringLiteral("recipe_ingredient")).toArray());
    ReadRemarks(draft, recipe);
    ReadNutrition(draft, recipe["nutrition"].toObject());
    return draft;
}

QList<RecipeDraft> MealieRecipes::ReadBackup(const QJsonObject& tables) {
    const Backup backup{
        ByRecipe(tables["recipes_ingredients"]), ByRecipe(tables["recipe_instructions"]),
        ByRecipe(tables["recipe_nutrition"]),    ByRecipe(tables["notes"]),
        ByKey(tables["ingredient_foods"]),       ByKey(tables["ingredient_units"])};
    QList<RecipeDraft> recipes;
    for (const QJsonValue row : tables["recipes"].toArray()) {
        const QString key = row["id"].toVariant().toString();
        QJsonObject recipe = row.toObject();
        recipe["recipe_ingredient"] = backup.Ingredients(key);
        recipe["recipe_instructions"] = InOrder(backup.instructions.value(key));
        recipe["nutrition"] = backup.nutrition.value(key).at(0);
        recipe["notes"] = backup.notes.value(key);
        recipes << Read(recipe);
    }
    return recipes;
}
