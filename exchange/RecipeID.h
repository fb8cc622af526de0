#pragma once

#include "exchange/Text.h"

namespace exchange {

/// The number of a recipe. 0 and 1 have other meanings in the program.
namespace RecipeID {
inline constexpr int Least = 2;
inline constexpr int Most = 0x7fffffff;

inline std::optional<int> Read(std::string_view text) {
    return WholeNumber(text, Least, Most);
}
} // namespace RecipeID

} // namespace exchange
