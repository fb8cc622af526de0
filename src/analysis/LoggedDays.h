#pragma once

#include "analysis/Period.h"

#include <bitset>

/// The days of a month on which the current user has logged something.
namespace LoggedDays {
using Days = std::bitset<32>; ///< by the day of the month, from 1

Days WithFood(const Period& month);
Days WithWeight(const Period& month); ///< a weight of 0 counts as none
} // namespace LoggedDays
