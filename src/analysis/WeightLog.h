#pragma once

#include <QDate>

#include <vector>

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

std::vector<Entry> Entries(QDate start, QDate end); ///< of the period, in the order of days
Extremes LeastAndGreatest(QDate start, QDate end);  ///< of a period that has entries

} // namespace WeightLog
