#include "analysis/WeightLog.h"

#include "model/User.h"
#include "runtime/Dates.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

QString OfUser() {
    return QString::number(User::Current().UID) + u" AND ";
}

QString Between(QDate start, QDate end) {
    return u"UDate Between #" + Dates::ShortText(start) + u"# AND #" + Dates::ShortText(end) +
           u"# ";
}

} // namespace

std::vector<WeightLog::Entry> WeightLog::Entries(QDate start, QDate end) {
    Recordset rows(UserDB(),
                   "SELECT * FROM USER_WEIGHTS "
                   " WHERE Weight > 0 AND UID=" +
                       OfUser() + Between(start, end) + "ORDER BY UDate",
                   Cursor::Static, Lock::Optimistic);
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(rows.RecordCount()));
    for (; !rows.AtEnd(); rows.MoveNext())
        entries.push_back(
            {rows[QStringLiteral("Weight")].Number(), rows[QStringLiteral("UDate")].Date()});
    rows.Close();
    return entries;
}

WeightLog::Extremes WeightLog::LeastAndGreatest(QDate start, QDate end) {
    Recordset row(UserDB(),
                  "SELECT  Min(Weight) As [MinWeight], Max(Weight) As [MaxWeight] FROM "
                  "USER_WEIGHTS "
                  " WHERE  Weight > 0 AND UID=" +
                      OfUser() + Between(start, end),
                  Cursor::Static, Lock::ReadOnly);
    const Extremes extremes{row[QStringLiteral("MinWeight")].Integer(),
                            row[QStringLiteral("MaxWeight")].Integer()};
    row.Close();
    return extremes;
}
