#include "foods/FoodHabits.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>
#include <vector>

namespace {

struct Habit {
    QString name;
    double times;
};

/// The foods that were logged for a meal, the newest first, without blank names.
std::vector<Habit> HabitsOf(int meal) {
    std::vector<Habit> habits;
    Recordset rows(UserDB(), "SELECT FoodName, Max(RecID), Count(*) FROM USER_FOODS WHERE UID =" +
                                 QString::number(User::Current().UID) + " AND MEAL = '" +
                                 Meals::NameOf(meal).toUpper() +
                                 "' GROUP BY FoodName ORDER BY Max(RecID) DESC");
    for (; !rows.AtEnd(); rows.MoveNext())
        if (const QString name = rows[0].Text(); !name.simplified().isEmpty())
            habits.push_back({name, rows[2].Number()});
    return habits;
}

} // namespace

FoodHabits::Names FoodHabits::OfMeal(int meal, int count) {
    std::vector<Habit> habits = HabitsOf(meal);
    const auto after = [&](auto place) {
        return place + std::min(count, int(habits.end() - place));
    };
    const auto others = after(habits.begin());
    std::ranges::stable_sort(others, habits.end(), std::ranges::greater(), &Habit::times);
    Names names;
    std::for_each(habits.begin(), others, [&](const Habit& habit) { names.last << habit.name; });
    std::for_each(others, after(others), [&](const Habit& habit) { names.most << habit.name; });
    return names;
}
