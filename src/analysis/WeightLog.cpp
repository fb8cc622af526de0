#include "analysis/WeightLog.h"

#include "model/User.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

QString OfUser(const Period& period) {
    return QString::number(User::Current().UID) + " AND " + period.Condition() + " ";
}

} // namespace

std::vector<WeightLog::Entry> WeightLog::Entries(const Period& period) {
    Recordset rows(UserDB(),
                   "SELECT * FROM USER_WEIGHTS "
                   " WHERE Weight > 0 AND UID=" +
                       OfUser(period) + "ORDER BY UDate",
                   Cursor::Static, Lock::Optimistic);
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(rows.RecordCount()));
    for (; !rows.AtEnd(); rows.MoveNext())
        entries.push_back(
            {rows[QStringLiteral("Weight")].Number(), rows[QStringLiteral("UDate")].Date()});
    return entries;
}

WeightLog::Extremes WeightLog::LeastAndGreatest(const Period& period) {
    const Recordset row(UserDB(), "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] "
                                  "FROM USER_WEIGHTS "
                                  " WHERE  Weight > 0 AND UID=" +
                                      OfUser(period));
    return {row[QStringLiteral("MinWeight")].Integer(), row[QStringLiteral("MaxWeight")].Integer()};
}

qint32 WeightLog::Average(const Period& period) {
    const Recordset row(UserDB(),
                        "SELECT Avg(USER_WEIGHTS.Weight) AS [Weight] FROM USER_WEIGHTS WHERE "
                        "Weight > 0 AND UID=" +
                            QString::number(User::Current().UID) + " AND " + period.Condition());
    return Round(row[QStringLiteral("Weight")].Number());
}
