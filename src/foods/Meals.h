#pragma once

#include <array>

/// The meals of a day, in order. A row of the log holds the name of its meal, or an empty text.
namespace Meals {
inline constexpr std::array<const char*, 4> Names{"Breakfast", "Lunch", "Dinner", "Snacks"};
} // namespace Meals
