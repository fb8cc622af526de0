#pragma once

#include <soci/soci.h>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace soci {
/// What is empty is null in the database.
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
/// use and kept. The statements are the same on SQLite and PostgreSQL; what differs between the two
/// ends in this class. After an exception the connection must not be used again.
class Connection {
public:
    /// `database` is what the setting of that name holds: the path of an SQLite file, or an address
    /// that begins with postgresql:// or postgresql:.
    explicit Connection(const std::string& database);

    /// Runs a statement of at most one row; the rest are soci::use and soci::into of variables.
    /// Tells whether there is a row, which has been read into the variables.
    template <class... Exchanges> bool First(std::string_view sql, const Exchanges&... exchanges) {
        auto& statement = Bound(sql, exchanges...);
        const bool found = statement.execute(true);
        if (found)
            statement.fetch(); // behind the last row a statement holds nothing any more
        return found;
    }

    /// Runs a statement and calls back for each row, which has been read into the variables.
    template <class Row, class... Exchanges>
    void Each(std::string_view sql, const Row& row, const Exchanges&... exchanges) {
        auto& statement = Bound(sql, exchanges...);
        for (bool more = statement.execute(true); more; more = statement.fetch())
            row();
    }

    /// Runs a statement and tells how many rows it changed.
    template <class... Exchanges> long long Change(std::string_view sql, const Exchanges&... uses) {
        const auto turn = TakeTurn();
        auto& statement = Bound(sql, uses...);
        statement.execute(true);
        return statement.get_affected_rows();
    }

    bool IsEmbedded() const { return embedded_; }

    /// One statement that is not kept.
    void Once(const std::string& sql) { session_.once << sql; }

    /// What a log may say of an error: nothing of the values that a statement was run with.
    static std::string Describe(const std::exception& error);

private:
    friend class Transaction;
    void Tune();
    /// In the embedded database the writers of a process queue here and not at the file, where
    /// whoever waits longest has the least chance. Empty within a transaction, which has its turn.
    std::unique_lock<std::mutex> TakeTurn() const;
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
    soci::session session_;
    std::map<std::string, std::unique_ptr<soci::statement>, std::less<>> statements_;
};

/// All or nothing: rolled back unless committed. Begins with a statement that writes, so that two
/// of them never wait for each other.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction() { connection_.inTransaction_ = false; }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit() { transaction_.commit(); }

private:
    Connection& connection_;
    std::unique_lock<std::mutex> turn_;
    soci::transaction transaction_;
};

} // namespace exchange
