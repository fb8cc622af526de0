#pragma once

#include "exchange/Recipe.h"
#include "exchange/RecipeStore.h"

#include <string>
#include <vector>

namespace exchange {

/// The pages, which need no script. The templates escape every text of a user.
namespace Pages {
struct ListPage {
    std::string query;
    int page = 1;
    std::optional<int> from; ///< the place in the list where a search continues
    RecipeStore::ListPortion found;
};

std::string Front();
std::string Community(const ListPage& list);
/// `token` is that of the form that reports the recipe.
std::string RecipePage(const Recipe& recipe, const std::string& token);
std::string NoMail(const std::string& token);
std::string Notice(const std::string& heading, const std::string& text);
std::string Problem(int status, const std::string& reason);
inline constexpr int LastPage = 500;
} // namespace Pages

} // namespace exchange
