#pragma once

#include "exchange/Connection.h"
#include "exchange/Recipe.h"

#include <optional>
#include <string>

namespace exchange {

/// The mails that are to go out, one a recipe. A mail is put in by the transaction that makes its
/// recipe readable, so that neither is there without the other. Any number of servers may take
/// mails out: a mail that is claimed is left alone by the others for a while.
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
    /// The mail that has been due longest, claimed until a moment; nothing if none is due.
    std::optional<Entry> Claim(long long until);
    void NoteSent(const Entry& entry);
    void TryLater(const Entry& entry, long long due);
    void Drop(const Entry& entry);

private:
    Connection& connection_;
};

} // namespace exchange
