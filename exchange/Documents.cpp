#include "exchange/Documents.h"

#include "exchange/Json.h"

namespace exchange::Documents {
namespace {
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

} // namespace exchange::Documents
