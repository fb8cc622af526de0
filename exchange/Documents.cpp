#include "exchange/Documents.h"

#include "exchange/Json.h"

namespace exchange::Documents {
namespace {
void Text(std::string& json, std::string_view name, const std::string& text) {
    json.append("\"").append(name).append("\":");
    Json::AppendText(json, std::string_view(text));
}

void Number(std::string& json, std::string_view name, double number) {
    json.append("\"").append(name).append("\":");
    Json::AppendNumber(json, number);
}

std::string Fields() {
    std::string json;
    for (const auto& name : FieldNames())
        json.append(json.empty() ? "\"" : ",\"").append(name).append("\"");
    return json;
}

void Row(std::string& json, const Ingredient& ingredient, int id, int recipeID) {
    json.append("[").append(std::to_string(id));
    for (const auto& amount : ingredient.nutrients)
        Json::AppendNumber(json += ',', amount);
    Json::AppendText(json += ',', ingredient.foodName);
    Json::AppendText(json += ',', ingredient.serving);
    json.append(",").append(std::to_string(recipeID));
    Json::AppendNumber(json += ',', ingredient.quantity);
    json += ']';
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
