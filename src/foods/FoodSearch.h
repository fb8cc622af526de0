#pragma once

#include "foods/FoodList.h"

class SearchTerms;

/// Looks the words of a term up in the store, apart from any window.
namespace FoodSearch {
/// Where to look. Whatever is ticked, recipes come first, then custom foods, then stock foods.
struct Sources {
    bool recipes;
    bool custom;
    bool stock;
};

/// At most 201 entries a source, each source in the order of its names.
FoodList Find(const SearchTerms& terms, const Sources& sources);
} // namespace FoodSearch
