#pragma once

#include "exchange/Config.h"
#include "exchange/Limits.h"

#include <array>
#include <atomic>
#include <iterator>

namespace exchange {

/// Keeps people from finding recipes by trying numbers. Each look-up of an ID that does not exist
/// counts for all networks of the visitor; one that has too many gets no recipe at all within the
/// hour, so that a hit does not tell itself apart. When all visitors together miss too often, each
/// is allowed a tenth only: that slows those who guess, and not those who know their numbers.
class MissGuard {
public:
    static constexpr const char* TooMany =
        "Too many recipe IDs that do not exist. Please try again later.";

    enum class Verdict { Found, Missed, TooMany };

    /// Under which names the misses of a visitor are counted in this hour.
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

    /// Looks something up, which tells whether it is there, unless the visitor has missed too
    /// often, and counts a miss.
    template <class LookUp>
    Verdict Look(Connection& connection, const Visitor& visitor, const LookUp& lookUp) const {
        const auto guess = Of(visitor);
        const int misses = Counted(connection, guess);
        return Judge(connection, guess, misses, IsShut(misses, guess) || lookUp());
    }

    /// For a look-up that has read the misses in its own statement, with `Counting`. With IN,
    /// SQLite would make a table for the names at each look-up, which takes longer than to read a
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
