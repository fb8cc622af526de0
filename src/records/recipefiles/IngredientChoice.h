#pragma once

#include "records/recipefiles/FoodMatch.h"

/// What a person chose for a line of a recipe: "2.3=16329:B:1.5" takes 1.5 times serving B of food
/// 16329 for line 3 of recipe 2, "2.3=text" leaves the line as text.
struct IngredientChoice {
    int recipe = 0; ///< both are counted from 1
    int line = 0;
    std::optional<FoodMatch> food = {}; ///< none: it stays text

    static std::optional<IngredientChoice> Of(const QString& text);
};
