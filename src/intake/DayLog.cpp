#include "intake/DayLog.h"

#include "model/User.h"
#include "runtime/Dates.h"
#include "store/Connection.h"
#include "store/Recordset.h"

QString DayLog::RowsOf(const char* table, QDate day) {
    return QLatin1String("SELECT * FROM ") + QLatin1String(table) +
           " WHERE UID =" + QString::number(User::Current().UID) + " AND UDATE = #" +
           Dates::ShortText(day) + u'#';
}

double DayLog::Weight(QDate day) {
    const Recordset rows(UserDB(), RowsOf("USER_WEIGHTS", day), Cursor::Static, Lock::ReadOnly);
    return rows.AtEnd() ? 0 : rows[QStringLiteral("Weight")].NumberOr(0);
}

void DayLog::SetWeight(QDate day, double weight) {
    Recordset rows(UserDB(), RowsOf("USER_WEIGHTS", day), Cursor::Keyset, Lock::Optimistic);
    if (rows.AtEnd())
        rows.AddNew();
    rows.Set(QStringLiteral("UID"), User::Current().UID);
    rows.Set(QStringLiteral("Weight"), weight);
    rows.Set(QStringLiteral("UDate"), day);
    rows.Update();
    rows.Close();
}

void DayLog::ClearFoods(QDate day) {
    Recordset rows(UserDB(), RowsOf("USER_FOODS", day), Cursor::Keyset, Lock::Optimistic);
    const int count = rows.RecordCount();
    if (count > 0)
        rows.MoveLast();
    for (int i = 0; i < count; ++i) {
        rows.Delete();
        rows.MovePrevious();
    }
    rows.Close();
}
