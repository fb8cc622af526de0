#include "exchange/Connection.h"

#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <span>
#include <sys/socket.h>

namespace exchange {
namespace {
constexpr std::string_view ServerPrefix = "postgresql:";

bool IsFile(std::string_view database) {
    return !database.starts_with(ServerPrefix);
}

constexpr std::chrono::seconds LongestRead(5);
constexpr std::chrono::seconds LongestWrite(20);

/// Notices within seconds that the database server is gone, unless the setting says otherwise.
std::string WithTimeouts(std::string server) {
    constexpr std::pair<std::string_view, std::string_view> timeouts[] = {
        {"connect_timeout=", "5"},
        {"tcp_user_timeout=", "10000"},
        {"keepalives_idle=", "5"},
        {"keepalives_interval=", "2"},
        {"keepalives_count=", "3"}};
    const bool isAddress = server.starts_with("postgresql://");
    for (const auto& [name, value] : timeouts) {
        if (server.find(name) != std::string::npos)
            continue;
        const char* first = server.find('?') == std::string::npos ? "?" : "&";
        server.append(isAddress ? first : " ").append(name).append(value);
    }
    return server;
}

/// By default, SQLite counts its memory under a lock of all threads, and each connection has a
/// lock. Only one thread at a time uses a connection, so neither is needed.
void ReadySQLite() {
    static const bool done = [] {
        sqlite_api::sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
        sqlite_api::sqlite3_config(SQLITE_CONFIG_MULTITHREAD);
        return true;
    }();
    static_cast<void>(done);
}

soci::connection_parameters ParametersOf(const std::string& database) {
    if (IsFile(database))
        ReadySQLite();
    if (IsFile(database))
        return {soci::sqlite3, "db=\"" + database + "\" timeout=10 shared_cache=false"};
    if (database.starts_with("postgresql://"))
        return {soci::postgresql, WithTimeouts(database)};
    return {soci::postgresql, WithTimeouts(database.substr(ServerPrefix.size()))};
}

/// Each commit is synced to the disk before it is acknowledged.
constexpr const char* EmbeddedSettings[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL",
                                            "PRAGMA foreign_keys=ON", "PRAGMA cache_size=-16384"};

/// Every statement of this program uses an index. The planner cannot know which words occur
/// together, so it is kept from scanning whole tables. And a program that hangs in a transaction
/// must not hold up the others for long.
constexpr const char* ServerSettings[] = {
    "SET client_min_messages = warning", "SET lock_timeout = '10s'",
    "SET statement_timeout = '25s'",     "SET idle_in_transaction_session_timeout = '30s'",
    "SET enable_seqscan = off",          "SET jit = off"};
} // namespace

Connection::Connection(const std::string& database)
    : embedded_(IsFile(database))
    , session_(ParametersOf(database))
    , watch_([this] { Interrupt(); }) {
    const Timed timed(*this, true);
    Tune();
}

/// Otherwise the library would free each statement at the server, which may no longer answer.
Connection::~Connection() {
    if (!embedded_)
        Interrupt();
}

Connection::Timed::Timed(Connection& connection, bool writes)
    : connection_(connection)
    , noted_(connection) {
    if (!connection_.unhurried_)
        connection_.watch_.Begin(writes ? LongestWrite : LongestRead);
}

/// The library does not export the types of its backends, which the sanitizer would need.
[[gnu::no_sanitize("vptr")]] void Connection::Interrupt() {
    auto* backend = session_.get_backend();
    if (embedded_)
        sqlite_api::sqlite3_interrupt(static_cast<soci::sqlite3_session_backend*>(backend)->conn_);
    else
        ::shutdown(PQsocket(static_cast<soci::postgresql_session_backend*>(backend)->conn_),
                   SHUT_RDWR);
}

WriteGate& Connection::Gate() {
    static WriteGate gate(4);
    return gate;
}

void Connection::SetWriters(int seats) {
    Gate().SetSeats(seats);
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

/// Only the first line, without the statement: the rest quotes the values.
std::string Connection::Describe(const std::exception& error) {
    const auto* failure = dynamic_cast<const soci::soci_error*>(&error);
    const std::string text = failure ? failure->get_error_message() : error.what();
    return text.substr(0, text.find('\n'));
}

Transaction::Transaction(Connection& connection)
    : connection_(connection)
    , turn_(Connection::Gate(), connection.embedded_) {
    const Connection::Timed timed(connection_, true);
    transaction_.emplace(connection_.session_);
    connection_.inTransaction_ = true;
}

Transaction::~Transaction() {
    RollBack();
    connection_.inTransaction_ = false;
    connection_.unhurried_ = false;
}

void Transaction::Commit() {
    const Connection::Timed timed(connection_, true);
    transaction_->commit();
    committed_ = true;
}

void Transaction::RollBack() {
    if (committed_)
        return;
    try {
        const Connection::Timed timed(connection_, true);
        transaction_->rollback();
    } catch (const std::exception&) {
        connection_.failed_ = true;
    }
}

void Transaction::Unhurry() {
    connection_.unhurried_ = true;
    connection_.watch_.End();
    if (connection_.embedded_)
        return;
    for (const auto* name :
         {"statement_timeout", "lock_timeout", "idle_in_transaction_session_timeout"})
        connection_.Once("SET LOCAL " + std::string(name) + " = 0");
}

} // namespace exchange
