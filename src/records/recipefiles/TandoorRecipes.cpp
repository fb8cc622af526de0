#include "records/recipefiles/TandoorRecipes.h"

#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/LineText.h"

#include <QJsonArray>

#include <algorithm>

namespace {
QList<QJsonObject> InOrder(const QJsonValue& array) {
    QList<QJsonObject> sorted;
    for (const QJsonValue one : array.toArray())
        sorted << one.toObject();
    std::ranges::stable_sort(sorted, {},
                             [](const QJsonObject& one) { return one["order"].toDouble(); });
    return sorted;
}

IngredientLine Line(const QJsonObject& ingredient) {
    const QString note = ForeignJson::Of(ingredient["note"]);
    if (ingredient["is_header"].toBool())
        return {note, std::nullopt, true};
    const double amount = ingredient["no_amount"].toBool() ? 0 : ingredient["amount"].toDouble();
    return {LineText::Of(amount, ForeignJson::Of(ingredient["unit"]),
                         ForeignJson::Of(ingredient["food"]), note)};
}

void ReadSteps(RecipeDraft& draft, const QJsonValue& steps) {
    QStringList paragraphs;
    for (const QJsonObject& step : InOrder(steps)) {
        for (const char* part : {"name", "instruction"})
            if (const QString text = step[QLatin1String(part)].toString().trimmed();
                !text.isEmpty())
                paragraphs << text;
        for (const QJsonObject& ingredient : InOrder(step["ingredients"]))
            if (const IngredientLine line = Line(ingredient); !line.text.isEmpty())
                draft.ingredients.append(line);
    }
    draft.values[RecipeField::Instructions] = paragraphs.join(u'\n');
}

void ReadRemarks(RecipeDraft& draft, const QJsonObject& recipe) {
    struct Remark {
        const char* key;
        QLatin1String caption;
    };
    static constexpr Remark remarks[] = {{"description", QLatin1String("About: ")},
                                         {"keywords", QLatin1String("Keywords: ")},
                                         {"source_url", QLatin1String("Source: ")}};
    for (const Remark& remark : remarks)
        if (const QString text = ForeignJson::Of(recipe[QLatin1String(remark.key)]);
            !text.isEmpty())
            draft.remarks << QString(remark.caption + text);
    QStringList facts;
    for (const char* name : {"calories", "fats", "carbohydrates", "proteins"})
        if (const QJsonValue value = recipe["nutrition"][QLatin1String(name)]; value.isDouble())
            facts << QString(QLatin1String(name) + u' ' + ForeignJson::Of(value));
    if (!facts.isEmpty())
        draft.remarks << QString(u"Nutrition in the file: " + facts.join(QLatin1String(", ")));
}
} // namespace

bool TandoorRecipes::IsRecipe(const QJsonObject& object) {
    return object["steps"].isArray() && object.contains(QLatin1String("working_time"));
}

RecipeDraft TandoorRecipes::Read(const QJsonObject& recipe) {
    RecipeDraft draft;
    draft.values[RecipeField::Name] = ForeignJson::Of(recipe["name"]).simplified();
    if (const double servings = recipe["servings"].toDouble(); servings > 0)
        draft.values[RecipeField::Yield] = servings;
    if (const QString serving = ForeignJson::Of(recipe["servings_text"]); !serving.isEmpty())
        draft.values[RecipeField::Serving] = serving;
    if (const double minutes =
            recipe["working_time"].toDouble() + recipe["waiting_time"].toDouble();
        minutes > 0)
        draft.values[RecipeField::Time] = minutes;
    ReadSteps(draft, recipe["steps"]);
    ReadRemarks(draft, recipe);
    return draft;
}
