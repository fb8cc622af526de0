#pragma once

#include "exchange/Watchdog.h"
#include "exchange/WriteGate.h"

#include <soci/soci.h>

#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace soci {
/// An empty optional is null in the database.
template <class T> struct type_conversion<std::optional<T>> {
    using base_type = typename type_conversion<T>::base_type;
    static void from_base(const base_type& value, indicator is, std::optional<T>& member) {
        member = is == i_null ? std::nullopt : std::optional<T>(value);
    }
    static void to_base(const std::optional<T>& member, base_type& value, indicator& is) {
        is = member ? i_ok : i_null;
        value = member.value_or(T());
    }
};
} // namespace soci

namespace exchange {

/// One connection to the database, for one thread at a time. A statement is prepared at its first
/// use and kept. The statements are the same on SQLite and PostgreSQL; this class hides what
/// differs between the two. A statement that takes too long fails: after 5 seconds if it reads,
/// after 20 if it writes. After a failed statement, the connection must not be used again.
class Connection {
public:
    /// `database` is what the setting of that name holds: the path of an SQLite file, or an address
    /// that begins with postgresql:// or postgresql:.
    explicit Connection(const std::string& database);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// How many threads of this process may write, or wait to write, at the same time.
    static void SetWriters(int seats);

    /// Runs a statement that gives at most one row. The other arguments are soci::use and
    /// soci::into of variables. Tells whether there is a row, and reads it into the variables.
    template <class... Exchanges> bool First(std::string_view sql, const Exchanges&... exchanges) {
        const Timed timed(*this, inTransaction_);
        auto& statement = Bound(sql, exchanges...);
        const bool found = statement.execute(true);
        if (found)
            statement.fetch(); // behind the last row a statement holds nothing any more
        return found;
    }

    /// Runs a statement that changes at most :n rows, its last parameter, until no row is left.
    /// Others can write between the portions.
    template <class... Exchanges> void ChangeAll(std::string_view sql, const Exchanges&... uses) {
        constexpr int portion = 500;
        while (Change(sql, uses..., soci::use(portion)) == portion) {
        }
    }

    /// Runs a statement, reads each row into the variables, and calls back for it.
    template <class Row, class... Exchanges>
    void Each(std::string_view sql, const Row& row, const Exchanges&... exchanges) {
        const Timed timed(*this, inTransaction_);
        auto& statement = Bound(sql, exchanges...);
        for (bool more = statement.execute(true); more; more = statement.fetch())
            row();
    }

    /// Runs a statement and tells how many rows it changed.
    template <class... Exchanges> long long Change(std::string_view sql, const Exchanges&... uses) {
        std::optional<WriteGate::Turn> turn;
        if (!inTransaction_)
            turn.emplace(Gate(), embedded_);
        const Timed timed(*this, true);
        auto& statement = Bound(sql, uses...);
        statement.execute(true);
        return statement.get_affected_rows();
    }

    bool IsEmbedded() const { return embedded_; }

    /// Runs a statement that is not kept and may take any time.
    void Once(const std::string& sql) {
        const Noted noted(*this);
        session_.once << sql;
    }

    bool Failed() const { return failed_; } ///< a statement has thrown

    /// An error as the log may name it: without the values of the statement.
    static std::string Describe(const std::exception& error);

private:
    friend class Transaction;
    /// Notes when an exception leaves its scope.
    class Noted {
    public:
        explicit Noted(Connection& connection)
            : connection_(connection) {}
        ~Noted() {
            if (std::uncaught_exceptions() > exceptions_)
                connection_.failed_ = true;
        }
        Noted(const Noted&) = delete;
        Noted& operator=(const Noted&) = delete;

    private:
        Connection& connection_;
        int exceptions_ = std::uncaught_exceptions();
    };

    /// Lives while a statement runs.
    class Timed {
    public:
        Timed(Connection& connection, bool writes);
        ~Timed() { connection_.watch_.End(); }
        Timed(const Timed&) = delete;
        Timed& operator=(const Timed&) = delete;

    private:
        Connection& connection_;
        Noted noted_;
    };

    void Tune();
    /// Makes the running statement fail at once. Called from another thread.
    void Interrupt();
    static WriteGate& Gate();
    soci::statement& Prepared(std::string_view sql);

    template <class... Exchanges>
    soci::statement& Bound(std::string_view sql, const Exchanges&... exchanges) {
        auto& statement = Prepared(sql);
        statement.bind_clean_up();
        (statement.exchange(exchanges), ...);
        statement.define_and_bind();
        return statement;
    }

    bool embedded_;
    bool inTransaction_ = false;
    bool unhurried_ = false;
    bool failed_ = false;
    soci::session session_;
    std::map<std::string, std::unique_ptr<soci::statement>, std::less<>> statements_;
    Watchdog::Watch watch_; ///< ends before what it interrupts
};

/// All or nothing: rolled back unless committed. The first statement of a transaction must write,
/// so that two transactions never wait for each other.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();
    /// Lets its statements take any time. For a change of the tables, before the server serves.
    void Unhurry();

private:
    void RollBack(); ///< unless committed

    Connection& connection_;
    WriteGate::Turn turn_;
    std::optional<soci::transaction> transaction_;
    bool committed_ = false;
};

} // namespace exchange
