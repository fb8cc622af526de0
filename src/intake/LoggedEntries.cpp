#include "intake/LoggedEntries.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "runtime/Dates.h"

namespace {

QString RowsOfMeal(int meal, QDate day) {
    return "SELECT * FROM USER_FOODS WHERE UID =" + QString::number(User::Current().UID) +
           " AND MEAL = '" + Meals::NameOf(meal).toUpper() + "' AND UDate = #" +
           Dates::ShortText(day) + u'#';
}

} // namespace

QString RowsOfDay(const char* table, QDate day) {
    return QLatin1String("SELECT * FROM ") + QLatin1String(table) +
           " WHERE UID =" + QString::number(User::Current().UID) + " AND UDATE = #" +
           Dates::ShortText(day) + u'#';
}

LoggedEntries LoggedEntries::Of(QDate day, std::optional<int> meal) {
    return LoggedEntries(meal ? RowsOfMeal(*meal, day) : RowsOfDay("USER_FOODS", day));
}

LoggedEntries LoggedEntries::One(qint32 RecID) {
    return LoggedEntries("SELECT * FROM USER_FOODS WHERE RecID = " + QString::number(RecID));
}

LoggedEntries LoggedEntries::NoneOf(QDate day) {
    return LoggedEntries(RowsOfDay("USER_FOODS", day) + " AND 1 = 0");
}
