#pragma once

#include <array>
#include <span>
#include <string_view>

namespace exchange {

/// The 31 nutrient columns of `ingredients`, positions 1 to 31, in the order of the program's own
/// table: rows are exchanged by position.
struct NutrientColumn {
    std::string_view name;
    std::string_view label;
    std::string_view unit;
    bool large; ///< stands in the upper half of a recipe's nutrition box
};

inline constexpr int NutrientCount = 31;
inline constexpr int FieldCount = NutrientCount + 5;

/// Positions that mean more than a nutrient.
enum Position {
    IDPosition = 0,
    CaloriesPosition = 12,
    FoodNamePosition = NutrientCount + 1,
    ServingPosition,
    RecipeIDPosition,
    QuantityPosition
};

std::span<const NutrientColumn, NutrientCount> NutrientColumns();
/// Indexes of NutrientColumns in the order of a nutrition label, calories first. Programs that do
/// not name their fields send the values in this order.
std::span<const int, NutrientCount> LabelOrder();
std::array<std::string_view, FieldCount> FieldNames(); ///< all 36, by position

} // namespace exchange
