#pragma once

#include <QDate>

#include <vector>

struct Period;

/// The weights that the current user has entered. An entry of 0 is one that was taken back: it is
/// passed over.
namespace WeightLog {

struct Entry {
    double weight; ///< pounds
    QDate day;
};
struct Extremes {
    qint32 min, max; ///< rounded half to even
};

std::vector<Entry> Entries(const Period& period); ///< in the order of their days
Extremes LeastAndGreatest(const Period& period);  ///< of a period that has entries

} // namespace WeightLog
