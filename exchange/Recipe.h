#pragma once

#include "exchange/Columns.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace exchange {

/// One row of `ingredients` without its keys: amounts for the quantity in the recipe.
struct Ingredient {
    std::array<std::optional<double>, NutrientCount> nutrients;
    std::optional<std::string> foodName;
    std::optional<std::string> serving;
    std::optional<double> quantity;
};

/// One row of `recipes`, as a sender gives it.
struct Recipe {
    int id = 0;
    std::string name;
    std::string servingName;
    double yield = 0;
    std::string instructions;
    double prepTime = 0;
    std::string from;
    std::string to;
    bool isPublic = false;
    std::vector<Ingredient> ingredients;

    double Servings() const { return yield == 0 ? 1 : yield; }
    /// The sum over the ingredients by one serving; nothing if no ingredient has a value, or if the
    /// servings are so small that it is beyond all measure.
    std::optional<double> PerServing(int nutrient) const;
};

} // namespace exchange
