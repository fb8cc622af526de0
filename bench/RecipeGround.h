#pragma once

#include "Ground.h"

/// Adds recipes and custom foods; every third name has lentils, as some foods of the catalogue do.
/// The first recipe has many ingredients.
class RecipeGround : public Ground {
public:
    static constexpr int ManyRows = 5000;
    static constexpr int ManyIngredients = 100;

    explicit RecipeGround(int rows = ManyRows);
};
