#pragma once

#include "model/Nuts.h"

#include <QDate>

#include <optional>

/// The days from one to another, both counted. With the end before the start there are none.
struct Period {
    QDate from, to;
};

/// What the current user has logged, summed by the store. Nothing where no food was logged, or none
/// with calories known; other amounts that nobody knows count as 0.
namespace LoggedSums {
std::optional<Nuts> OfDay(QDate day);
std::optional<Nuts> OfPeriod(const Period& period);
/// An average day's calories (whole), fat, protein and carbohydrate, over the days with food.
/// Nothing, too, where they come to less than one kilocalorie.
std::optional<Nuts> AverageEnergy(const Period& period);
int LoggedDays(const Period& period);  ///< those with food
QString Between(const Period& period); ///< the condition on `UDate`
} // namespace LoggedSums
