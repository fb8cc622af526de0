#include "foods/FoodHabits.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

/// The names in that order, without blank ones and those that are known.
QStringList Ordered(int meal, const char* order, int count, const QStringList& known = {}) {
    QStringList names;
    Recordset rows(UserDB(), "SELECT FoodName, Max(RecID), Count(*) FROM USER_FOODS WHERE UID =" +
                                 QString::number(User::Current().UID) + " AND MEAL = '" +
                                 Meals::NameOf(meal).toUpper() + "' GROUP BY FoodName ORDER BY " +
                                 QLatin1String(order));
    for (; !rows.AtEnd() && names.size() < count; rows.MoveNext()) {
        const QString name = rows[0].Text();
        if (!name.simplified().isEmpty() && !known.contains(name))
            names << name;
    }
    return names;
}

} // namespace

FoodHabits::Names FoodHabits::OfMeal(int meal, int count) {
    Names names;
    names.last = Ordered(meal, "Max(RecID) DESC", count);
    names.most = Ordered(meal, "Count(*) DESC, Max(RecID) DESC", count, names.last);
    return names;
}
