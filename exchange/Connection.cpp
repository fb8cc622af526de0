#include "exchange/Connection.h"

#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <span>

namespace exchange {
namespace {
constexpr std::string_view ServerPrefix = "postgresql:";

bool IsEmbedded(std::string_view database) {
    return !database.starts_with(ServerPrefix);
}

soci::connection_parameters Parameters(const std::string& database) {
    if (IsEmbedded(database))
        return {soci::sqlite3, "db=\"" + database + "\" timeout=20 shared_cache=false"};
    if (database.starts_with("postgresql://"))
        return {soci::postgresql, database};
    return {soci::postgresql, database.substr(ServerPrefix.size())};
}

std::mutex& Turn() {
    static std::mutex turn;
    return turn;
}

/// What is acknowledged is on the disk: the log is written through at each commit.
constexpr const char* EmbeddedSettings[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                            "PRAGMA foreign_keys=ON", "PRAGMA cache_size=-16384"};

/// Every join of this program looks up keys in the order of an index and ends after a page. The
/// planner, which cannot know how words go together, is kept from joining whole tables instead.
constexpr const char* ServerSettings[] = {"SET client_min_messages = warning",
                                          "SET enable_hashjoin = off", "SET enable_mergejoin = off",
                                          "SET enable_bitmapscan = off", "SET enable_sort = off"};
} // namespace

Connection::Connection(const std::string& database)
    : embedded_(IsEmbedded(database))
    , session_(Parameters(database)) {
    Tune();
}

void Connection::Tune() {
    const auto settings = embedded_ ? std::span<const char* const>(EmbeddedSettings)
                                    : std::span<const char* const>(ServerSettings);
    for (const auto* setting : settings)
        session_.once << setting;
}

soci::statement& Connection::Prepared(std::string_view sql) {
    const auto known = statements_.find(sql);
    if (known != statements_.end())
        return *known->second;
    auto statement = std::make_unique<soci::statement>(session_);
    statement->alloc();
    statement->prepare(std::string(sql));
    return *statements_.emplace(sql, std::move(statement)).first->second;
}

Transaction::Transaction(Connection& connection)
    : turn_(connection.embedded_ ? std::unique_lock(Turn()) : std::unique_lock<std::mutex>())
    , transaction_(connection.session_) {}

} // namespace exchange
