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

    /// The serving as a cook reads it, with the quantity where that is not 1: "1.5 x 1 cup".
    std::optional<std::string> Portion() const;
};

/// One row of `recipes` as it was sent: empty fields stay empty.
struct Recipe {
    int id = 0;
    std::optional<std::string> name;
    std::optional<std::string> servingName;
    std::optional<double> yield;
    std::optional<std::string> instructions;
    std::optional<double> prepTime;
    std::string from;
    std::string to;
    bool isPublic = false;
    std::vector<Ingredient> ingredients;

    double Servings() const { return yield.value_or(0) == 0 ? 1 : *yield; }
    /// The sum over the ingredients, per serving; nothing if no ingredient has a value, or if the
    /// result is absurdly large.
    std::optional<double> PerServing(int nutrient) const;
};

} // namespace exchange
