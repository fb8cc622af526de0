#include "intake/LoggedEntries.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "runtime/Dates.h"

namespace {

QString OfUser() {
    return "UID =" + QString::number(User::Current().UID);
}

QString OfDay(QDate day) {
    return OfUser() + " AND UDATE = #" + Dates::ShortText(day) + u'#';
}

QString OfMeal(int meal, QDate day) {
    return OfUser() + " AND MEAL = '" + Meals::NameOf(meal).toUpper() + "' AND UDate = #" +
           Dates::ShortText(day) + u'#';
}

} // namespace

QString RowsOfDay(const char* table, QDate day) {
    return QLatin1String("SELECT * FROM ") + QLatin1String(table) + " WHERE " + OfDay(day);
}

LoggedEntries LoggedEntries::Of(QDate day, std::optional<int> meal) {
    return LoggedEntries(meal ? OfMeal(*meal, day) : OfDay(day));
}

LoggedEntries LoggedEntries::One(qint32 RecID) {
    return LoggedEntries("RecID = " + QString::number(RecID));
}

LoggedEntries LoggedEntries::NoneOf(QDate day) {
    return LoggedEntries(OfDay(day) + " AND 1 = 0");
}

QString LoggedEntries::Statement(const char* columns) const {
    return QLatin1String("SELECT ") + QLatin1String(columns) + " FROM USER_FOODS WHERE " +
           condition_;
}
