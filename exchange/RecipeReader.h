#pragma once

#include "exchange/Recipe.h"

#include <string>
#include <vector>

namespace exchange {

/// Reads the bodies that a client sends, as docs/exchange-wire.md describes them. Any other body is
/// refused as a whole, with a Refusal that names the field.
namespace RecipeReader {
Recipe ReadRecipe(const std::string& body);
std::vector<Ingredient> ReadIngredients(const std::string& body, int most);
} // namespace RecipeReader

} // namespace exchange
