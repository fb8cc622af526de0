#pragma once

#include "intake/DayLog.h"
#include "records/RecordsChange.h"
#include "store/Connection.h"

/// A change of the records as a command makes it, and what it leaves.
namespace WeighIn {
inline const QDate Day{2002, 3, 4};

inline void Change(const RecordsFolder& records, int weight) {
    RecordsChange change(records, "weigh " + QString::number(weight));
    DayLog::SetWeight(Day, weight);
    change.Commit();
}

inline double Kept(const RecordsFolder& records) {
    UserDB().Open(records.Users(), DatabaseKind::Users);
    const double weight = DayLog::Weight(Day);
    UserDB().Close();
    return weight;
}
} // namespace WeighIn
