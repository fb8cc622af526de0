#pragma once

#include "exchange/Connection.h"

#include <string>

namespace exchange {

/// The commands of the operator about recipes. Each takes effect at once on every server of the
/// database, however many recipes there are. False means that there was nothing to do.
class Moderation {
public:
    explicit Moderation(Connection& connection)
        : connection_(connection) {}

    static constexpr int MostListed = 200;
    /// The recipes with reports, the one with the newest report first, as text for a terminal.
    std::string Reported();
    bool Hide(int recipeID);    ///< from everybody; a mail that waits is not sent
    bool Show(int recipeID);    ///< undoes Hide
    bool Remove(int recipeID);  ///< for good
    bool Dismiss(int recipeID); ///< deletes the reports of a recipe

private:
    Connection& connection_;
};

} // namespace exchange
