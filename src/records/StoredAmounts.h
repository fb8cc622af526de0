#pragma once

#include "model/NutrientAmounts.h"

#include <QVariant>

/// The 31 amounts in a row of FOODS, USER_FOODS or Ingredients: all three have them at the same
/// positions. An unknown amount is null.
namespace StoredAmounts {
qsizetype PlaceOf(Nutrient id); ///< among the amounts, counted from 0

NutrientAmounts Of(const Recordset& row);
QVariantList Values(const NutrientAmounts& amounts); ///< in the order of the row
void Set(Recordset& row, const NutrientAmounts& amounts);
} // namespace StoredAmounts
