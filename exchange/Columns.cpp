#include "exchange/Columns.h"

namespace exchange {
namespace {
constexpr std::array<NutrientColumn, NutrientCount> Table{{
    {"Calories", "Calories", "", true},
    {"TotalFat", "Total fat", "g", true},
    {"SatFat", "Saturated fat", "g", true},
    {"MonoFat", "Monounsaturated fat", "g", true},
    {"PolyFat", "Polyunsaturated fat", "g", true},
    {"Cholesterol", "Cholesterol", "mg", true},
    {"Sodium", "Sodium", "mg", true},
    {"carbs", "Carbohydrates", "g", true},
    {"fiber", "Fiber", "g", true},
    {"Protein", "Protein", "g", true},
    {"Calcium", "Calcium", "mg", false},
    {"Copper", "Copper", "mg", false},
    {"Folate", "Folate", "mcg", false},
    {"Iron", "Iron", "mg", false},
    {"Magnesium", "Magnesium", "mg", false},
    {"Manganese", "Manganese", "mg", false},
    {"Niacin", "Niacin", "mg", false},
    {"Panto", "Pantothenic acid", "mg", false},
    {"Phosphorus", "Phosphorus", "mg", false},
    {"Potassium", "Potassium", "mg", false},
    {"Riboflavin", "Riboflavin", "mg", false},
    {"Selenium", "Selenium", "mg", false},
    {"Thiamin", "Thiamin", "mg", false},
    {"VitaminA", "Vitamin A", "iu", false},
    {"VitaminB12", "Vitamin B12", "mcg", false},
    {"VitaminB6", "Vitamin B6", "mg", false},
    {"VitaminC", "Vitamin C", "mg", false},
    {"VitaminE", "Vitamin E", "mg", false},
    {"Zinc", "Zinc", "mg", false},
    {"Ash", "Ash", "g", false},
    {"Water", "Water", "g", false},
}};
} // namespace

std::span<const NutrientColumn, NutrientCount> NutrientColumns() {
    return Table;
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
