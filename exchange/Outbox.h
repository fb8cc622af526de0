#pragma once

#include "exchange/Connection.h"
#include "exchange/Recipe.h"

#include <optional>
#include <string>

namespace exchange {

/// The mails that wait to be sent, one for a recipe. The transaction that makes a recipe readable
/// also adds its mail, so that neither exists without the other. Several servers may take mails
/// out: when one claims a mail, the others leave it alone for a while.
class Outbox {
public:
    explicit Outbox(Connection& connection)
        : connection_(connection) {}

    struct Entry {
        int recipeID = 0;
        std::string from;
        std::string to;
        std::string
            messageID; ///< the same at each try, so that mail programs recognise a second copy
        long long queuedAt = 0;
        long long due = 0;
        int tries = 0;
    };

    void Add(const Recipe& recipe); ///< for the caller's transaction
    /// Claims the mail that has been due longest, until a moment; nothing if none is due.
    std::optional<Entry> Claim(long long until);
    void NoteSent(const Entry& entry);
    void TryLater(const Entry& entry, long long due);
    void Drop(const Entry& entry);

private:
    Connection& connection_;
};

} // namespace exchange
