#include "analysis/WeightLog.h"

#include "model/User.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <limits>

namespace {

/// What is above the greatest whole number is no weight. Nor is a text, which compares as greater
/// than any number.
QString Condition(const Period& period) {
    return " WHERE Weight > 0 AND Weight <= " +
           QString::number(std::numeric_limits<qint32>::max()) +
           " AND UID=" + QString::number(User::Current().UID) + " AND " + period.Condition() + " ";
}

} // namespace

std::vector<WeightLog::Entry> WeightLog::Entries(const Period& period) {
    Recordset rows(UserDB(), "SELECT * FROM USER_WEIGHTS " + Condition(period) + "ORDER BY UDate",
                   CursorType::Static, LockType::Optimistic);
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(rows.RecordCount()));
    for (; !rows.AtEnd(); rows.MoveNext())
        if (const QDate day = rows[QStringLiteral("UDate")].Day(); day.isValid())
            entries.push_back({rows[QStringLiteral("Weight")].Number(), day});
    return entries;
}

WeightLog::Extremes WeightLog::LeastAndGreatest(const Period& period) {
    const Recordset row(UserDB(), "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] "
                                  "FROM USER_WEIGHTS " +
                                      Condition(period));
    return {row[QStringLiteral("MinWeight")].Integer(), row[QStringLiteral("MaxWeight")].Integer()};
}

qint32 WeightLog::Average(const Period& period) {
    const Recordset row(UserDB(), "SELECT Avg(USER_WEIGHTS.Weight) AS [Weight] FROM USER_WEIGHTS " +
                                      Condition(period));
    return Round(row[QStringLiteral("Weight")].Number());
}
