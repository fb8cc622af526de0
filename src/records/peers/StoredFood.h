#pragma once

#include "records/peers/Imported.h"

class Recordset;

/// A food in a row of USER_FOODS or Ingredients. An unknown amount is null.
namespace StoredFood {
ImportedFood Read(const Recordset& row);
void Set(Recordset& row, const ImportedFood& food);

/// Equal for foods that are equal to the last bit.
QByteArray Key(const ImportedFood& food);
} // namespace StoredFood
