#include "exchange/Columns.h"

namespace exchange {
namespace {
constexpr std::array<NutrientColumn, NutrientCount> Table{{
    {"VitaminC", "Vitamin C", "mg", false},
    {"VitaminE", "Vitamin E", "mg", false},
    {"VitaminB12", "Vitamin B12", "mcg", false},
    {"VitaminB6", "Vitamin B6", "mg", false},
    {"VitaminA", "Vitamin A", "iu", false},
    {"SatFat", "Saturated fat", "g", true},
    {"Potassium", "Potassium", "mg", false},
    {"PolyFat", "Polyunsaturated fat", "g", true},
    {"MonoFat", "Monounsaturated fat", "g", true},
    {"Folate", "Folate", "mcg", false},
    {"Water", "Water", "g", false},
    {"Calories", "Calories", "", true},
    {"Protein", "Protein", "g", true},
    {"TotalFat", "Total fat", "g", true},
    {"carbs", "Carbohydrates", "g", true},
    {"fiber", "Fiber", "g", true},
    {"Ash", "Ash", "g", false},
    {"Calcium", "Calcium", "mg", false},
    {"Phosphorus", "Phosphorus", "mg", false},
    {"Iron", "Iron", "mg", false},
    {"Sodium", "Sodium", "mg", true},
    {"Magnesium", "Magnesium", "mg", false},
    {"Panto", "Pantothenic acid", "mg", false},
    {"Zinc", "Zinc", "mg", false},
    {"Copper", "Copper", "mg", false},
    {"Manganese", "Manganese", "mg", false},
    {"Selenium", "Selenium", "mg", false},
    {"Thiamin", "Thiamin", "mg", false},
    {"Riboflavin", "Riboflavin", "mg", false},
    {"Niacin", "Niacin", "mg", false},
    {"Cholesterol", "Cholesterol", "mg", true},
}};

constexpr std::string_view LabelNames[] = {
    "Calories",  "TotalFat",  "SatFat",   "MonoFat",    "PolyFat",    "Cholesterol", "Sodium",
    "carbs",     "fiber",     "Protein",  "Calcium",    "Copper",     "Folate",      "Iron",
    "Magnesium", "Manganese", "Niacin",   "Panto",      "Phosphorus", "Potassium",   "Riboflavin",
    "Selenium",  "Thiamin",   "VitaminA", "VitaminB12", "VitaminB6",  "VitaminC",    "VitaminE",
    "Zinc",      "Ash",       "Water"};

/// Fails to compile if a name is in only one of the two lists.
consteval std::array<int, NutrientCount> FindLabelOrder() {
    std::array<int, NutrientCount> order{};
    for (size_t i = 0; i < NutrientCount; ++i)
        while (Table.at(static_cast<size_t>(order[i])).name != LabelNames[i])
            ++order[i];
    return order;
}
constexpr auto Order = FindLabelOrder();
static_assert(std::size(LabelNames) == NutrientCount);
static_assert(Table[CaloriesPosition - 1].name == "Calories");
} // namespace

std::span<const NutrientColumn, NutrientCount> NutrientColumns() {
    return Table;
}

std::span<const int, NutrientCount> LabelOrder() {
    return Order;
}

std::array<std::string_view, FieldCount> FieldNames() {
    std::array<std::string_view, FieldCount> names;
    names[IDPosition] = "ID";
    for (size_t i = 0; i < Table.size(); ++i)
        names[i + 1] = Table[i].name;
    names[FoodNamePosition] = "FoodName";
    names[ServingPosition] = "Serving";
    names[RecipeIDPosition] = "RecipeID";
    names[QuantityPosition] = "QTY";
    return names;
}

} // namespace exchange
