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

    /// For a look-up that has read the misses in its own statement, with `Counting`.
    Verdict Judge(Connection& connection, const Guess& guess, int misses, bool found) const;
    static constexpr const char* Counting =
        "(SELECT MAX(Hits) FROM counters WHERE Name IN (:a, :b, :c, :d) AND Slot = :slot)";

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
