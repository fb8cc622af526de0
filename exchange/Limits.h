#pragma once

#include "exchange/Connection.h"
#include "exchange/Visitor.h"

#include <string>
#include <string_view>

namespace exchange {

/// Something that is counted for somebody in an hour or a day (UTC). The name identifies this
/// person only by a keyed digest.
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

    Counter Daily(std::string_view what, std::string_view who) const; ///< nobody: the whole service

    /// Counts one more. False, without counting, if that would exceed the limit.
    static bool Count(Connection& connection, const Counter& counter, int limit);

    /// Counts one more today for a visitor and for all. False if this exceeds a limit of one of the
    /// visitor's networks or of all; then the caller rolls back. A network has at most a tenth of
    /// the limit of all.
    bool CountToday(Connection& connection, std::string_view what, const Visitor& visitor,
                    int limit, int limitOfAll) const;

    static long long Hour(); ///< the slot of this hour

    /// The limits of the wider networks, as multiples of that of a client, narrowest first.
    static constexpr int Growth[] = {1, 4, 16, 64};
    static void ForgetOld(Connection& connection);

private:
    std::string secret_;
};

} // namespace exchange
