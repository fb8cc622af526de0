#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// An ingredient in words: "2 x 1 cup, Lentils, raw".
QString IngredientLabel(const FinishedIngredient& ingredient);
