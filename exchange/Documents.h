#pragma once

#include "exchange/Recipe.h"

#include <string>

namespace exchange {

/// The two replies that hold a recipe, as JSON. They are written once, when the recipe is sent.
namespace Documents {
std::string RecipeDocument(const Recipe& recipe);
std::string IngredientsDocument(const Recipe& recipe);
/// The recipe of two documents. They do not hold its addresses, nor whether it is public.
Recipe Read(const std::string& recipe, const std::string& ingredients);
} // namespace Documents

} // namespace exchange
