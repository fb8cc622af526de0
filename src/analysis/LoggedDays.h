#pragma once

#include "analysis/Period.h"

#include <bitset>

/// The days on which the current user has logged something.
namespace LoggedDays {
int CountWithFood(const Period& period); ///< how many

using Days = std::bitset<32>; ///< by the day of the month, from 1; bit 0 is a row without a date
Days WithFood(const Period& month);
Days WithWeight(const Period& month); ///< a weight of 0 counts as none
} // namespace LoggedDays
