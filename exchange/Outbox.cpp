#include "exchange/Outbox.h"

#include "exchange/Moment.h"
#include "exchange/RecipeStore.h"
#include "exchange/Secrets.h"

namespace exchange {
namespace {
using soci::into;
using soci::use;
} // namespace

void Outbox::Add(const Recipe& recipe) {
    const auto messageID = Secrets::RandomToken().substr(0, 32);
    const auto now = Moment::Now();
    connection_.Change("INSERT INTO outbox (RecipeID, Sender, Recipient, MessageID, QueuedAt, Due,"
                       " Tries) VALUES (:id, :from, :to, :message, :now, :due, 0)",
                       use(recipe.id), use(recipe.from), use(recipe.to), use(messageID), use(now),
                       use(now));
}

/// If several servers claim a mail at once, the first UPDATE gets it: the others do not find it
/// due.
std::optional<Outbox::Entry> Outbox::Claim(long long until) {
    const auto now = Moment::Now();
    Entry entry;
    if (!connection_.First("SELECT RecipeID, Sender, Recipient, MessageID, QueuedAt, Due, Tries"
                           " FROM outbox WHERE Due <= :now ORDER BY Due LIMIT 1",
                           use(now), into(entry.recipeID), into(entry.from), into(entry.to),
                           into(entry.messageID), into(entry.queuedAt), into(entry.due),
                           into(entry.tries)))
        return {};
    const bool got =
        connection_.Change("UPDATE outbox SET Due = :until WHERE RecipeID = :id AND Due = :due",
                           use(until), use(entry.recipeID), use(entry.due)) > 0;
    return got ? std::optional(entry) : std::nullopt;
}

void Outbox::NoteSent(const Entry& entry) {
    Transaction transaction(connection_);
    Drop(entry);
    RecipeStore(connection_).NoteMailed(entry.recipeID);
    transaction.Commit();
}

void Outbox::TryLater(const Entry& entry, long long due) {
    connection_.Change("UPDATE outbox SET Due = :due, Tries = Tries + 1 WHERE RecipeID = :id",
                       use(due), use(entry.recipeID));
}

void Outbox::Drop(const Entry& entry) {
    connection_.Change("DELETE FROM outbox WHERE RecipeID = :id", use(entry.recipeID));
}

} // namespace exchange
