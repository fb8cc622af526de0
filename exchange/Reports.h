#pragma once

#include "exchange/Connection.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// What is wrong with a recipe: a choice in the form.
struct Complaint {
    std::string_view name; ///< in the form and in the database
    std::string_view label;
};

/// A report as it was made. Nothing is kept about who made it.
struct Report {
    long long at = 0;
    std::string complaint; ///< the name of one
    std::string words;
};

/// What readers report of recipes, for the operator.
class Reports {
public:
    static constexpr size_t LongestWords = 500; ///< letters
    static constexpr int MostOfARecipe = 20;    ///< that are kept

    explicit Reports(Connection& connection)
        : connection_(connection) {}

    static std::span<const Complaint> Complaints();
    static bool IsComplaint(std::string_view name);

    /// Ignores reports of recipes that cannot be read, and those beyond the limit of a recipe.
    void Add(int recipeID, const Report& report);
    std::vector<Report> Of(int recipeID); ///< newest first
    bool Forget(int recipeID);

private:
    Connection& connection_;
};

} // namespace exchange
