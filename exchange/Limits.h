#pragma once

#include "exchange/Connection.h"
#include "exchange/Visitor.h"

#include <string>
#include <string_view>

namespace exchange {

/// One thing that is counted for somebody, in an hour or a day by the clock (UTC). Who it is stands
/// in the name as a keyed digest only.
struct Counter {
    std::string name;
    long long slot;
};

/// Counts of what clients, recipients and the whole service have done, kept in the database, so
/// that all servers on it count together.
class Limits {
public:
    explicit Limits(std::string secret)
        : secret_(std::move(secret)) {}

    Counter Hourly(std::string_view what, const Visitor& visitor) const;
    Counter Daily(std::string_view what, const Visitor& visitor) const;
    Counter Daily(std::string_view what, std::string_view who) const; ///< nobody: the whole service

    /// What is said to who has asked for so many IDs that do not exist that even those that do are
    /// kept from him.
    static constexpr const char* TooManyMisses =
        "Too many recipe IDs that do not exist. Please try again later.";

    /// One more; false, and not counted, if that would be above the limit.
    static bool Count(Connection& connection, const Counter& counter, int limit);
    static int Counted(Connection& connection, const Counter& counter);
    static void ForgetOld(Connection& connection);

private:
    std::string secret_;
};

} // namespace exchange
