#include "analysis/LoggedDays.h"

#include "model/User.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

QString OfUser(const Period& period) {
    return QString::number(User::Current().UID) + " AND " + period.Condition();
}

size_t DayOf(const Field& date) {
    return size_t(date.Day().day());
}

} // namespace

int LoggedDays::CountWithFood(const Period& period) {
    return Recordset(UserDB(), "SELECT DISTINCT USER_FOODS.UDate FROM USER_FOODS"
                               " WHERE UID=" +
                                   OfUser(period))
        .RecordCount();
}

LoggedDays::Days LoggedDays::WithFood(const Period& month) {
    Recordset foods(UserDB(), "SELECT DISTINCT UDate FROM USER_FOODS WHERE UID=" + OfUser(month));
    Days days;
    for (; !foods.AtEnd(); foods.MoveNext())
        days.set(DayOf(foods[0]));
    return days;
}

LoggedDays::Days LoggedDays::WithWeight(const Period& month) {
    Recordset weights(UserDB(),
                      "SELECT UDate, Weight FROM USER_WEIGHTS WHERE UID=" + OfUser(month));
    Days days;
    for (; !weights.AtEnd(); weights.MoveNext())
        if (weights[1].NumberOr(0) != 0)
            days.set(DayOf(weights[0]));
    return days;
}
