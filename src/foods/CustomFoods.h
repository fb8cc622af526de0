#pragma once

#include "foods/CustomFood.h"
#include "runtime/NameOrder.h"

/// The foods of a person's own: the rows of FOODS above the last stock food.
namespace CustomFoods {
QList<NamedKey> Names(); ///< in the order of the names

/// A row that holds its key alone, one above the highest. Gives the key.
qint32 Append();

// The row of that key must exist, else these fail (3021).
CustomFood Read(qint32 id);
void Save(qint32 id, const CustomFood& food);
void Delete(qint32 id); ///< what was logged or cooked with the food stays
} // namespace CustomFoods
