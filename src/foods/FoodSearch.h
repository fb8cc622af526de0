#pragma once

#include "foods/FoodList.h"

#include <optional>

class SearchTerms;

/// Finds foods and recipes by the words in their names.
namespace FoodSearch {
/// Where to look. Recipes come first in the result, then custom foods, then stock foods.
struct Sources {
    bool recipes;
    bool custom;
    bool stock;
};

inline constexpr int MostOfASource = 201;
/// Gives at most MostOfASource entries for each source, in the order of the names.
FoodList Find(const SearchTerms& terms, const Sources& sources);
/// The food or the recipe of that key, if there is one.
std::optional<Food> WithKey(qint32 key, bool isRecipe);

QString NoMatch(); ///< the message for an empty list
} // namespace FoodSearch
