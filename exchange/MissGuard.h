#pragma once

#include "exchange/Config.h"
#include "exchange/Limits.h"

#include <array>
#include <atomic>
#include <iterator>

namespace exchange {

/// Keeps people from finding recipes by guessing IDs. Each request for an unknown ID counts for all
/// networks of the visitor. A network with too many gets no recipe at all within the hour, so that
/// a hit looks like a miss. When all visitors together miss too often, the limit of each falls to a
/// tenth: that slows down guessing, but not readers who know their IDs.
class MissGuard {
public:
    static constexpr const char* TooMany =
        "You have asked for too many recipe IDs that do not exist. Please try again later.";

    enum class Verdict { Found, Missed, TooMany };

    /// The names of the counters of a visitor's misses in this hour.
    struct Guess {
        std::array<std::string, std::size(Limits::Growth)> names;
        long long slot = 0;

        /// Calls `run` with the values that `Counting` takes, in its order.
        template <class Run> void With(const Run& run) const {
            using soci::use;
            run(use(names[0]), use(slot), use(names[1]), use(slot), use(names[2]), use(slot),
                use(names[3]), use(slot));
        }
    };

    explicit MissGuard(const Config& config)
        : config_(config) {}

    Guess Of(const Visitor& visitor) const;

    /// Calls `lookUp`, which tells whether the recipe exists, and counts a miss. Does not call it
    /// if the visitor has missed too often.
    template <class LookUp>
    Verdict Look(Connection& connection, const Visitor& visitor, const LookUp& lookUp) const {
        const auto guess = Of(visitor);
        const int misses = Counted(connection, guess);
        return Judge(connection, guess, misses, IsShut(misses, guess) || lookUp());
    }

    /// For a look-up that has read the misses in its own statement, with `Counting`. IN would be
    /// slower: SQLite would build a table of the names each time, which takes longer than reading a
    /// recipe.
    Verdict Judge(Connection& connection, const Guess& guess, int misses, bool found) const;
    static constexpr const char* Counting =
        "(SELECT MAX(Hits) FROM (SELECT Hits FROM counters WHERE Name = :a AND Slot = :sa"
        " UNION ALL SELECT Hits FROM counters WHERE Name = :b AND Slot = :sb"
        " UNION ALL SELECT Hits FROM counters WHERE Name = :c AND Slot = :sc"
        " UNION ALL SELECT Hits FROM counters WHERE Name = :d AND Slot = :sd) counted)";

    /// Refuses, unless it is found.
    static void Require(Verdict verdict);

private:
    static int Counted(Connection& connection, const Guess& guess);
    bool IsShut(int misses, const Guess& guess) const;
    void Note(Connection& connection, const Guess& guess) const;

    const Config& config_;
    mutable std::atomic<long long> alarm_ = -1; ///< the slot in which all missed too often
};

} // namespace exchange
