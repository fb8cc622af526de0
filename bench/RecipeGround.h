#pragma once

#include "Ground.h"

/// So many recipes and custom foods, each third one of lentils, of which the catalogue has some as
/// well. The first recipe has many ingredients.
class RecipeGround : public Ground {
public:
    static constexpr int ManyRows = 5000;
    static constexpr int ManyIngredients = 100;

    RecipeGround();
};
