#include "exchange/RecipeReader.h"

#include "exchange/Refusal.h"
#include "exchange/Text.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace exchange::RecipeReader {
namespace {
using nlohmann::json;

constexpr double LargestNumber = 1e9;
constexpr int DeepestNesting = 4;

struct TextField {
    const char* name;
    std::string Recipe::*member;
    size_t longest;
    std::string_view controls; ///< the control characters that it may hold
    bool needed;
};
struct NumberField {
    const char* name;
    double Recipe::*member;
};

constexpr TextField TextFields[] = {
    {"RecipeName", &Recipe::name, 300, "", true},
    {"ServingName", &Recipe::servingName, 300, "", false},
    {"Instructions", &Recipe::instructions, 100'000, "\t\r\n", false},
    {"EMAILFROM", &Recipe::from, 320, "", true},
    {"EMAILTO", &Recipe::to, 320, "", true},
};
constexpr NumberField NumberFields[] = {
    {"RecipeYield", &Recipe::yield},
    {"PrepTime", &Recipe::prepTime},
};
constexpr size_t LongestFoodText = 500;

[[noreturn]] void Refuse(const std::string& reason) {
    throw Refusal(400, reason);
}

json Parse(const std::string& body) {
    const auto shallow = [](int depth, json::parse_event_t, json&) {
        if (depth > DeepestNesting)
            Refuse("The body is nested too deeply.");
        return true;
    };
    try {
        return json::parse(body, shallow);
    } catch (const json::exception&) {
        Refuse("The body is not JSON.");
    }
}

std::string Text(const json& value, const std::string& name, size_t longest,
                 std::string_view controls) {
    if (!value.is_string())
        Refuse(name + " must be a text.");
    auto text = value.get<std::string>();
    if (text.size() > longest)
        Refuse(name + " is longer than " + std::to_string(longest) + " bytes.");
    if (!IsPlain(text, controls))
        Refuse(name + " holds a control character.");
    return text;
}

double Number(const json& value, const std::string& name) {
    if (!value.is_number())
        Refuse(name + " must be a number.");
    const auto number = value.get<double>();
    if (!std::isfinite(number) || std::abs(number) > LargestNumber)
        Refuse(name + " is too large a number.");
    return number;
}

void Read(const json& body, const TextField& field, Recipe& recipe) {
    const auto found = body.find(field.name);
    if (found != body.end() && !found->is_null())
        recipe.*field.member = Text(*found, field.name, field.longest, field.controls);
    if (field.needed && Trimmed(recipe.*field.member).empty())
        Refuse(std::string(field.name) + " is missing.");
}

void Read(const json& body, const NumberField& field, Recipe& recipe) {
    const auto found = body.find(field.name);
    if (found != body.end() && !found->is_null())
        recipe.*field.member = Number(*found, field.name);
}

bool ReadPublic(const json& body) {
    const auto found = body.find("ISPUBLIC");
    if (found == body.end() || found->is_null())
        return false;
    if (!found->is_boolean())
        Refuse("ISPUBLIC must be true or false.");
    return found->get<bool>();
}

/// A position that is null or not there keeps nothing.
template <class T, class Convert>
void Take(const json& row, size_t position, std::optional<T>& member, const Convert& convert) {
    if (position < row.size() && !row[position].is_null())
        member = convert(row[position], std::string(FieldNames()[position]));
}

Ingredient ReadRow(const json& row) {
    if (!row.is_array() || row.empty() || row.size() > FieldCount)
        Refuse("A row must be an array of 1 to " + std::to_string(FieldCount) + " values.");
    const auto text = [](const json& value, const std::string& name) {
        return Text(value, name, LongestFoodText, "");
    };
    Ingredient ingredient;
    for (size_t i = 0; i < NutrientCount; ++i)
        Take(row, i + 1, ingredient.nutrients[i], Number);
    Take(row, FoodNamePosition, ingredient.foodName, text);
    Take(row, ServingPosition, ingredient.serving, text);
    Take(row, QuantityPosition, ingredient.quantity, Number);
    return ingredient;
}
} // namespace

Recipe ReadRecipe(const std::string& body) {
    const auto object = Parse(body);
    if (!object.is_object())
        Refuse("The body must be an object.");
    Recipe recipe;
    for (const auto& field : TextFields)
        Read(object, field, recipe);
    for (const auto& field : NumberFields)
        Read(object, field, recipe);
    recipe.isPublic = ReadPublic(object);
    return recipe;
}

std::vector<Ingredient> ReadIngredients(const std::string& body, int most) {
    const auto object = Parse(body);
    if (!object.is_object() || !object.contains("rows") || !object["rows"].is_array())
        Refuse("The body must be an object with an array \"rows\".");
    const auto& rows = object["rows"];
    if (rows.size() > static_cast<size_t>(most))
        throw Refusal(413, "A recipe takes " + std::to_string(most) + " ingredients at most.");
    std::vector<Ingredient> ingredients;
    for (const auto& row : rows)
        ingredients.push_back(ReadRow(row));
    return ingredients;
}

} // namespace exchange::RecipeReader
