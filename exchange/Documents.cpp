#include "exchange/Documents.h"

#include "exchange/Json.h"

#include <simdjson.h>

namespace exchange::Documents {
namespace {
namespace json = simdjson::ondemand;

void Text(std::string& json, std::string_view name, const std::optional<std::string>& text) {
    json.append("\"").append(name).append("\":");
    Json::AppendText(json, text);
}

void Number(std::string& json, std::string_view name, const std::optional<double>& number) {
    json.append("\"").append(name).append("\":");
    Json::AppendNumber(json, number);
}

std::string Fields() {
    std::string json;
    for (const auto& name : FieldNames())
        json.append(json.empty() ? "\"" : ",\"").append(name).append("\"");
    return json;
}

/// The quantity goes with the serving: programs do not carry the last position.
void Row(std::string& json, const Ingredient& ingredient, int id, int recipeID) {
    json.append("[").append(std::to_string(id));
    for (const auto& amount : ingredient.nutrients)
        Json::AppendNumber(json += ',', amount);
    Json::AppendText(json += ',', ingredient.foodName);
    Json::AppendText(json += ',', ingredient.Portion());
    json.append(",").append(std::to_string(recipeID)).append(",null]");
}

std::optional<double> NumberOf(json::value value) {
    if (value.is_null())
        return {};
    return value.get_double().value();
}

std::optional<std::string> TextOf(json::value value) {
    if (value.is_null())
        return {};
    return std::string(value.get_string().value());
}

Ingredient IngredientOf(json::array row) {
    Ingredient ingredient;
    size_t position = 0;
    for (auto value : row) {
        if (position > IDPosition && position <= NutrientCount)
            ingredient.nutrients[position - 1] = NumberOf(value.value());
        else if (position == FoodNamePosition)
            ingredient.foodName = TextOf(value.value());
        else if (position == ServingPosition)
            ingredient.serving = TextOf(value.value());
        ++position;
    }
    return ingredient;
}

void ReadFacts(json::parser& parser, const std::string& document, Recipe& recipe) {
    const simdjson::padded_string text(document);
    auto facts = parser.iterate(text);
    recipe.id = static_cast<int>(facts["RecipeID"].get_int64().value());
    recipe.name = TextOf(facts["RecipeName"].value());
    recipe.servingName = TextOf(facts["ServingName"].value());
    recipe.yield = NumberOf(facts["RecipeYield"].value());
    recipe.prepTime = NumberOf(facts["PrepTime"].value());
    recipe.instructions = TextOf(facts["Instructions"].value());
}

void ReadRows(json::parser& parser, const std::string& document, Recipe& recipe) {
    const simdjson::padded_string text(document);
    auto whole = parser.iterate(text);
    json::array rows = whole["rows"];
    recipe.ingredients.reserve(rows.count_elements());
    for (auto row : rows)
        recipe.ingredients.push_back(IngredientOf(row.get_array()));
}
} // namespace

std::string RecipeDocument(const Recipe& recipe) {
    std::string json = "{\"RecipeID\":" + std::to_string(recipe.id);
    Text(json += ',', "RecipeName", recipe.name);
    Text(json += ',', "ServingName", recipe.servingName);
    Number(json += ',', "RecipeYield", recipe.yield);
    Number(json += ',', "PrepTime", recipe.prepTime);
    Text(json += ',', "Instructions", recipe.instructions);
    return json + "}";
}

std::string IngredientsDocument(const Recipe& recipe) {
    static const std::string fields = Fields();
    std::string json = "{\"fields\":[" + fields + "],\"rows\":[";
    int id = 0;
    for (const auto& ingredient : recipe.ingredients) {
        if (id > 0)
            json += ',';
        Row(json, ingredient, ++id, recipe.id);
    }
    return json + "]}";
}

Recipe Read(const std::string& recipe, const std::string& ingredients) {
    Recipe read;
    json::parser parser; // one for both: it takes its memory once
    ReadFacts(parser, recipe, read);
    ReadRows(parser, ingredients, read);
    return read;
}

} // namespace exchange::Documents
