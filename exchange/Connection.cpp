#include "exchange/Connection.h"

#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <span>

namespace exchange {
namespace {
constexpr std::string_view ServerPrefix = "postgresql:";

bool IsFile(std::string_view database) {
    return !database.starts_with(ServerPrefix);
}

/// A database server that has vanished is noticed in seconds, unless the setting says otherwise.
std::string WithTimeouts(std::string server) {
    constexpr std::pair<std::string_view, std::string_view> timeouts[] = {
        {"connect_timeout=", "5"}, {"tcp_user_timeout=", "20000"}};
    const bool isAddress = server.starts_with("postgresql://");
    for (const auto& [name, value] : timeouts) {
        if (server.find(name) != std::string::npos)
            continue;
        const char* first = server.find('?') == std::string::npos ? "?" : "&";
        server.append(isAddress ? first : " ").append(name).append(value);
    }
    return server;
}

soci::connection_parameters Parameters(const std::string& database) {
    if (IsFile(database))
        return {soci::sqlite3, "db=\"" + database + "\" timeout=20 shared_cache=false"};
    if (database.starts_with("postgresql://"))
        return {soci::postgresql, WithTimeouts(database)};
    return {soci::postgresql, WithTimeouts(database.substr(ServerPrefix.size()))};
}

/// What is acknowledged is on the disk: the log is written through at each commit.
constexpr const char* EmbeddedSettings[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                            "PRAGMA foreign_keys=ON", "PRAGMA cache_size=-16384"};

/// Every statement of this program goes by an index. The planner, which cannot know how words go
/// together, is kept from walking whole tables instead. And a program that stops in the middle of a
/// transaction must not stop the others for long.
constexpr const char* ServerSettings[] = {
    "SET client_min_messages = warning", "SET lock_timeout = '10s'",
    "SET idle_in_transaction_session_timeout = '30s'", "SET enable_seqscan = off"};
} // namespace

Connection::Connection(const std::string& database)
    : embedded_(IsFile(database))
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

std::unique_lock<std::mutex> Connection::TakeTurn() const {
    static std::mutex turn;
    return embedded_ && !inTransaction_ ? std::unique_lock(turn) : std::unique_lock<std::mutex>();
}

/// The first line alone, without its context: in both the values are quoted.
std::string Connection::Describe(const std::exception& error) {
    const auto* failure = dynamic_cast<const soci::soci_error*>(&error);
    const std::string text = failure ? failure->get_error_message() : error.what();
    return text.substr(0, text.find('\n'));
}

Transaction::Transaction(Connection& connection)
    : connection_(connection)
    , turn_(connection.TakeTurn())
    , transaction_(connection.session_) {
    connection_.inTransaction_ = true;
}

} // namespace exchange
