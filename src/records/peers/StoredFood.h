#pragma once

#include "records/peers/Imported.h"

class Recordset;

/// The rows of a food's amounts: FOODS, USER_FOODS and Ingredients have them at the same positions.
/// An unknown amount is null.
namespace StoredFood {
NutrientAmounts Amounts(const Recordset& row);
void SetAmounts(Recordset& row, const NutrientAmounts& amounts);

ImportedFood Read(const Recordset& row); ///< of USER_FOODS or Ingredients
void Set(Recordset& row, const ImportedFood& food);

/// Equal for foods that are equal to the last bit.
QByteArray Key(const ImportedFood& food);
} // namespace StoredFood
