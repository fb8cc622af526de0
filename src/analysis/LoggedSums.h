#pragma once

#include "analysis/Period.h"
#include "model/Nuts.h"

#include <optional>

/// What the current user has logged, summed by the store. Nothing where no food was logged, or none
/// with calories known; other amounts that nobody knows count as 0.
namespace LoggedSums {
std::optional<Nuts> OfDay(QDate day);
std::optional<Nuts> OfPeriod(const Period& period);
/// An average day's calories (whole), fat, protein and carbohydrate, over the days with food.
/// Nothing, too, where they come to less than one kilocalorie.
std::optional<Nuts> AverageEnergy(const Period& period);
int LoggedDays(const Period& period); ///< those with food
} // namespace LoggedSums
