#include "records/recipefiles/SchemaRecipes.h"

#include "records/recipefiles/DurationText.h"
#include "records/recipefiles/ForeignJson.h"
#include "records/recipefiles/LineText.h"
#include "records/recipefiles/NutritionText.h"
#include "records/recipefiles/OwnRecipeJson.h"
#include "records/recipefiles/Yield.h"
#include "runtime/RuntimeError.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <optional>

namespace {
bool IsRecipe(const QJsonObject& object) {
    const QJsonValue type = object["@type"];
    return type == QLatin1String("Recipe") ||
           type.toArray().contains(QJsonValue(QLatin1String("Recipe")));
}

/// Recipes stand alone, in an array, in a graph or as the main entity of a page.
void Collect(const QJsonValue& value, QList<QJsonObject>& recipes) {
    for (const QJsonValue one : value.toArray())
        Collect(one, recipes);
    const QJsonObject object = value.toObject();
    if (IsRecipe(object))
        return recipes.append(object);
    for (const char* name : {"@graph", "mainEntity"})
        if (const QJsonValue inner = object[QLatin1String(name)]; !inner.isUndefined())
            Collect(inner, recipes);
}

/// A property, or the one that had its place earlier.
QJsonValue Property(const QJsonObject& recipe, const char* name, const char* earlier) {
    const QJsonValue value = recipe[QLatin1String(name)];
    return value.isUndefined() ? recipe[QLatin1String(earlier)] : value;
}

void ReadYields(RecipeDraft& draft, const QJsonValue& yield) {
    const QStringList texts =
        yield.isArray() ? ForeignJson::Lines(yield) : QStringList(ForeignJson::Of(yield));
    for (const QString& text : texts)
        if (draft.values[RecipeField::Yield].isNull())
            ReadYield(draft, text);
}

QString PropertyValue(const QJsonObject& object) {
    return QStringList{ForeignJson::Of(object["value"]), ForeignJson::Of(object["unitText"]),
                       ForeignJson::Of(object["name"])}
        .join(u' ')
        .simplified();
}

void ReadIngredients(RecipeDraft& draft, const QJsonValue& value) {
    for (const QJsonValue one : value.toArray())
        if (one.isArray())
            ReadIngredients(draft, one);
        else if (one.isObject())
            draft.ingredients.append({PropertyValue(one.toObject())});
        else if (const QString line = ForeignJson::Of(one).simplified(); !line.isEmpty())
            draft.ingredients.append({line});
    if (value.isString())
        for (const QString& line : ForeignJson::Lines(value))
            draft.ingredients.append({line.simplified()});
}

/// Steps stand in lines; the name of a section stands above its steps.
QStringList Steps(const QJsonValue& value) {
    QStringList steps;
    for (const QJsonValue one : value.toArray())
        steps << Steps(one);
    if (value.isString())
        steps << ForeignJson::Plain(value.toString());
    const QJsonObject step = value.toObject();
    const QString name = ForeignJson::Plain(step["name"].toString());
    const QString text = ForeignJson::Plain(step["text"].toString());
    if (!name.isEmpty() && !text.startsWith(name))
        steps << QString(name + u':');
    if (!text.isEmpty())
        steps << text;
    if (const QJsonValue inner = step["itemListElement"]; !inner.isUndefined())
        steps << Steps(inner);
    return steps;
}

std::optional<double> Minutes(const QJsonObject& recipe, const char* name) {
    const QJsonValue value = recipe[QLatin1String(name)];
    for (const char* bound : {"maxValue", "minValue"})
        if (const QJsonValue one = value[QLatin1String(bound)]; one.isString())
            return MinutesOf(one.toString());
    return MinutesOf(ForeignJson::Of(value));
}

QVariant TotalMinutes(const QJsonObject& recipe) {
    if (const auto total = Minutes(recipe, "totalTime"))
        return *total;
    const double sum = Minutes(recipe, "prepTime").value_or(0) +
                       Minutes(recipe, "cookTime").value_or(0) +
                       Minutes(recipe, "performTime").value_or(0);
    return sum > 0 ? QVariant(sum) : QVariant();
}

struct Remark {
    const char* property;
    const char* caption;
};
constexpr Remark Remarks[] = {
    {"description", "About"},     {"author", "By"},         {"recipeCategory", "Category"},
    {"recipeCuisine", "Cuisine"}, {"keywords", "Keywords"}, {"url", "Source"},
};

RecipeDraft ReadForeign(const QJsonObject& recipe) {
    RecipeDraft draft;
    draft.values[RecipeField::Name] = ForeignJson::Of(recipe["name"]).simplified();
    if (const QString serving = ForeignJson::Of(recipe["nutrition"]["servingSize"]);
        !serving.isEmpty())
        draft.values[RecipeField::Serving] = serving;
    ReadYields(draft, Property(recipe, "recipeYield", "yield"));
    draft.values[RecipeField::Time] = TotalMinutes(recipe);
    draft.values[RecipeField::Instructions] = Steps(recipe["recipeInstructions"]).join(u'\n');
    ReadIngredients(draft, Property(recipe, "recipeIngredient", "ingredients"));
    for (const Remark& remark : Remarks)
        if (const QString text = ForeignJson::Of(recipe[QLatin1String(remark.property)]);
            !text.isEmpty())
            draft.remarks << QString(QLatin1String(remark.caption) + u": " + text);
    ReadNutrition(draft, recipe["nutrition"].toObject());
    return draft;
}
} // namespace

QList<RecipeDraft> SchemaRecipes::Read(const QJsonValue& document) {
    QList<QJsonObject> found;
    Collect(document, found);
    QList<RecipeDraft> recipes;
    for (const QJsonObject& recipe : found)
        recipes << (recipe.contains(OwnPart) ? OwnRecipeJson::Read(recipe[OwnPart].toObject())
                                             : ReadForeign(recipe));
    return recipes;
}

QList<RecipeDraft> SchemaRecipes::ReadPage(const QString& page) {
    static const QRegularExpression block(
        QStringLiteral("<script[^>]{1,200}application/ld\\+json[^>]{0,200}>(.*?)</script>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QList<RecipeDraft> recipes;
    std::optional<RuntimeError> broken;
    for (auto all = block.globalMatch(page); all.hasNext();)
        try {
            recipes << Read(ForeignJson::Document(all.next().captured(1).toUtf8()));
        } catch (const RuntimeError& failure) {
            broken = failure;
        }
    if (recipes.isEmpty() && broken)
        throw RuntimeError(*broken);
    return recipes;
}
