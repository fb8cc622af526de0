#pragma once

#include "foods/FoodList.h"

class SearchTerms;

/// Finds foods and recipes by the words in their names.
namespace FoodSearch {
/// Where to look. Recipes come first in the result, then custom foods, then stock foods.
struct Sources {
    bool recipes;
    bool custom;
    bool stock;
};

/// Gives at most 201 entries for each source, in the order of the names.
FoodList Find(const SearchTerms& terms, const Sources& sources);
} // namespace FoodSearch
