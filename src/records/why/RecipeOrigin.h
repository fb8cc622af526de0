#pragma once

#include "records/why/Explanation.h"

/// Where the amounts of a recipe come from: the ingredients.
namespace RecipeOrigin {
Explanation Of(qint32 recipeID);
} // namespace RecipeOrigin
