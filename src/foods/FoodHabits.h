#pragma once

#include <QStringList>

/// The foods that the current user logs, by name, from the log itself.
namespace FoodHabits {
struct Names {
    QStringList last; ///< those logged last, the newest first
    QStringList most; ///< of the others, those logged most often
};

/// Of one meal, by its place in Meals::Names; at most `count` of each.
Names OfMeal(int meal, int count);
} // namespace FoodHabits
