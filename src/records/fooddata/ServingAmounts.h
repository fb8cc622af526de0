#pragma once

#include "model/NutrientAmounts.h"

/// What a serving of so many grams (or millilitres) holds of the amounts in 100. What is unknown
/// stays so.
NutrientAmounts ServingAmounts(const NutrientAmounts& in100, double serving);
