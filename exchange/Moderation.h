#pragma once

#include "exchange/Connection.h"

#include <string>

namespace exchange {

/// What the operator does about recipes. Each act holds at once for every server of the database,
/// however many recipes there are. False means that there was nothing to do.
class Moderation {
public:
    explicit Moderation(Connection& connection)
        : connection_(connection) {}

    static constexpr int MostListed = 200;
    /// The recipes with reports, the one with the newest report first, as text for a terminal.
    std::string Reported();
    bool Hide(int recipeID);    ///< from everybody, with its mail that is still on its way
    bool Show(int recipeID);    ///< takes Hide back
    bool Remove(int recipeID);  ///< for good
    bool Dismiss(int recipeID); ///< forgets the reports of a recipe

private:
    Connection& connection_;
};

} // namespace exchange
