#include "analysis/WeightLog.h"

#include "analysis/Period.h"
#include "model/User.h"
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
    rows.Close();
    return entries;
}

WeightLog::Extremes WeightLog::LeastAndGreatest(const Period& period) {
    Recordset row(UserDB(),
                  "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] "
                  "FROM USER_WEIGHTS "
                  " WHERE  Weight > 0 AND UID=" +
                      OfUser(period),
                  Cursor::Static, Lock::ReadOnly);
    const Extremes extremes{row[QStringLiteral("MinWeight")].Integer(),
                            row[QStringLiteral("MaxWeight")].Integer()};
    row.Close();
    return extremes;
}
