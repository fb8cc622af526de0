#include "exchange/Limits.h"

#include "exchange/Moment.h"
#include "exchange/Secrets.h"

namespace exchange {

namespace {
/// A slot is the number of the hour that its span begins with.
Counter Make(std::string_view what, std::string_view digest, int hours) {
    const auto hour = Moment::Now() / Moment::Hour;
    std::string name(what);
    if (!digest.empty())
        name.append(":").append(digest);
    return {name, hour - hour % hours};
}
} // namespace

Counter Limits::Hourly(std::string_view what, const Visitor& visitor) const {
    return Make(what, visitor.networks.front(), 1);
}

Counter Limits::Daily(std::string_view what, const Visitor& visitor) const {
    return Make(what, visitor.networks.front(), 24);
}

Counter Limits::Daily(std::string_view what, std::string_view who) const {
    return Make(what, who.empty() ? std::string() : Secrets::Keyed(secret_, who), 24);
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

int Limits::Counted(Connection& connection, const Counter& counter) {
    int hits = 0;
    const bool any =
        connection.First("SELECT Hits FROM counters WHERE Name = :name AND Slot = :slot",
                         soci::use(counter.name), soci::use(counter.slot), soci::into(hits));
    return any ? hits : 0;
}

void Limits::ForgetOld(Connection& connection) {
    const auto oldest = Moment::Now() / Moment::Hour - 48;
    connection.Change("DELETE FROM counters WHERE Slot < :slot", soci::use(oldest));
}

} // namespace exchange
