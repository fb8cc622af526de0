#pragma once

#include "analysis/Period.h"
#include "model/Nuts.h"

#include <optional>

/// What the current user has logged, summed by the store. Empty if no food was logged, or none
/// whose calories are known; other unknown amounts count as 0.
namespace LoggedSums {
std::optional<Nuts> OfDay(QDate day);
std::optional<Nuts> OfPeriod(const Period& period);
/// The calories (whole), fat, protein and carbohydrate of an average day, over the days with food.
/// Empty, too, if it has less than one kilocalorie.
std::optional<Nuts> AverageEnergy(const Period& period);
std::optional<Nuts> AverageEnergy(const Nuts& sums, int days);
} // namespace LoggedSums
