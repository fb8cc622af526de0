#pragma once

#include "analysis/Period.h"

#include <vector>

/// The weights that the current user has entered. An entry of 0 was taken back and does not count.
namespace WeightLog {

struct Entry {
    double weight; ///< pounds
    QDate day;
    bool operator==(const Entry&) const = default;
};
struct Extremes {
    qint32 min, max; ///< rounded half to even
};

std::vector<Entry> Entries(const Period& period); ///< in the order of their days
/// Both fail with an invalid use of Null where the period has no entry.
Extremes LeastAndGreatest(const Period& period);
qint32 Average(const Period& period); ///< rounded half to even

} // namespace WeightLog
