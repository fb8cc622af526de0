#pragma once

#include "model/NutrientAmounts.h"

#include <QByteArrayView>

#include <array>
#include <limits>
#include <span>

class FoodTally;

/// The figures of a FoodData Central download that our 31 nutrients come from. Each has a slot.
/// Where a nutrient has several figures, the first known one counts.
namespace FdcNutrients {
inline constexpr int SlotCount = 42;
inline constexpr double Unknown = std::numeric_limits<double>::quiet_NaN();
using Slots = std::span<double, SlotCount>;
using Figures = std::span<const double, SlotCount>;

/// The slot of a key of nutrient.csv. Below 1000 it is the nutrient's number: the survey foods
/// write that instead. -1 if the figure does not count here.
int SlotOf(quint32 key);

/// Fails if nutrient.csv gives one of the figures in another unit.
void RequireUnits(const QString& folder);

/// The amounts in 100 g or 100 ml. What was calculated or taken from another method is noted.
NutrientAmounts Amounts(Figures figures, FoodTally& tally);
} // namespace FdcNutrients
