#include "exchange/MissGuard.h"

#include "exchange/Refusal.h"

#include <algorithm>
#include <optional>

namespace exchange {
namespace {
using soci::into;
using soci::use;

/// A miss counts less for a wider network, so that one limit fits networks of every width.
constexpr int Widest = Limits::Growth[std::size(Limits::Growth) - 1];
constexpr int UnderAlarm = 10;

constexpr const char* All = "miss";

/// Adds a miss to the counters of all widths that have a name, and to that of all visitors.
std::string Noting() {
    constexpr const char* names[] = {":a", ":b", ":c", ":d"};
    std::string rows;
    for (size_t width = 0; width < std::size(Limits::Growth); ++width)
        rows += std::string("(") + names[width] + ", " +
                std::to_string(Widest / Limits::Growth[width]) + "), ";
    return "INSERT INTO counters (Name, Slot, Hits)"
           " SELECT column1, CAST(:slot AS BIGINT), column2 FROM (VALUES " +
           rows + "('" + All +
           "', 1)) misses WHERE column1 <> ''"
           " ON CONFLICT (Name, Slot) DO UPDATE SET Hits = counters.Hits + EXCLUDED.Hits";
}

int MissesOfAll(Connection& connection, long long slot) {
    const std::string name = All;
    int hits = 0;
    connection.First("SELECT Hits FROM counters WHERE Name = :name AND Slot = :slot", use(name),
                     use(slot), into(hits));
    return hits;
}
} // namespace

MissGuard::Guess MissGuard::Of(const Visitor& visitor) const {
    Guess guess;
    for (size_t width = 0; width < visitor.networks.size(); ++width)
        guess.names[width] = "miss:" + visitor.networks[width];
    guess.slot = Limits::Hour();
    return guess;
}

int MissGuard::Counted(Connection& connection, const Guess& guess) {
    static const std::string counting = std::string("SELECT ") + Counting;
    std::optional<int> misses;
    guess.With([&](const auto&... uses) { connection.First(counting, uses..., into(misses)); });
    return misses.value_or(0);
}

bool MissGuard::IsShut(int misses, const Guess& guess) const {
    const int allowed = alarm_ == guess.slot
                            ? std::max(1, config_.misses_per_client_hour / UnderAlarm)
                            : config_.misses_per_client_hour;
    return misses >= allowed * Widest;
}

MissGuard::Verdict MissGuard::Judge(Connection& connection, const Guess& guess, int misses,
                                    bool found) const {
    if (IsShut(misses, guess))
        return Verdict::TooMany;
    if (found)
        return Verdict::Found;
    Note(connection, guess);
    return Verdict::Missed;
}

void MissGuard::Note(Connection& connection, const Guess& guess) const {
    static const std::string noting = Noting();
    const auto& names = guess.names;
    connection.Change(noting, use(guess.slot), use(names[0]), use(names[1]), use(names[2]),
                      use(names[3]));
    if (MissesOfAll(connection, guess.slot) > config_.misses_per_hour)
        alarm_ = guess.slot;
}

void MissGuard::Require(Verdict verdict) {
    if (verdict == Verdict::TooMany)
        throw Refusal(429, TooMany, Refusal::Hour);
    if (verdict == Verdict::Missed)
        throw Refusal(404, "There is no recipe with this ID.");
}

} // namespace exchange
