#pragma once

#include "exchange/Recipe.h"

#include <string>

namespace exchange {

/// The two replies that hold a recipe, as JSON. They are written once, when the recipe is sent.
namespace Documents {
std::string RecipeDocument(const Recipe& recipe);
std::string IngredientsDocument(const Recipe& recipe);
} // namespace Documents

} // namespace exchange
