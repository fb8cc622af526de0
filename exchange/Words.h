#pragma once

#include "exchange/Recipe.h"

#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// The words that a public recipe is found by: those of its name and its ingredients, each once, in
/// lower case without accents and in the singular, so that both databases find the same. Only the
/// first ones count, so that no recipe is found by every search.
namespace Words {
inline constexpr size_t MostOfARecipe = 1000;
std::vector<std::string> Of(std::string_view text); ///< letters and digits only
std::vector<std::string> Of(const Recipe& recipe);
} // namespace Words

} // namespace exchange
