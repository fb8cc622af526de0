#include "exchange/Limits.h"

#include "exchange/Moment.h"
#include "exchange/Secrets.h"

#include <algorithm>

namespace exchange {

namespace {
constexpr int Day = 24;
constexpr int ShareOfAll = 10;

/// A slot is the number of the hour that its span begins with.
Counter Make(std::string_view what, std::string_view digest, int hours) {
    const auto hour = Limits::Hour();
    std::string name(what);
    if (!digest.empty())
        name.append(":").append(digest);
    return {name, hour - hour % hours};
}
} // namespace

long long Limits::Hour() {
    return Moment::Now() / Moment::Hour;
}

Counter Limits::Daily(std::string_view what, std::string_view who) const {
    return Make(what, who.empty() ? std::string() : Secrets::Keyed(secret_, who), Day);
}

bool Limits::Count(Connection& connection, const Counter& counter, int limit) {
    if (limit < 1)
        return false;
    return connection.Change("INSERT INTO counters (Name, Slot, Hits) VALUES (:name, :slot, 1)"
                             " ON CONFLICT (Name, Slot) DO UPDATE SET Hits = counters.Hits + 1"
                             " WHERE counters.Hits < :limit",
                             soci::use(counter.name), soci::use(counter.slot),
                             soci::use(limit)) > 0;
}

bool Limits::CountToday(Connection& connection, std::string_view what, const Visitor& visitor,
                        int limit, int limitOfAll) const {
    const int share = std::max(limit, limitOfAll / ShareOfAll);
    for (size_t width = 0; width < visitor.networks.size(); ++width) {
        const auto allowed = std::min<long long>(1LL * limit * Growth[width], share);
        if (!Count(connection, Make(what, visitor.networks[width], Day), static_cast<int>(allowed)))
            return false;
    }
    return Count(connection, Make(what, {}, Day), limitOfAll);
}

void Limits::ForgetOld(Connection& connection) {
    const auto oldest = Moment::Now() / Moment::Hour - 48;
    connection.ChangeAll("DELETE FROM counters WHERE (Name, Slot) IN (SELECT Name, Slot"
                         " FROM counters WHERE Slot < :slot LIMIT :n)",
                         soci::use(oldest));
}

} // namespace exchange
