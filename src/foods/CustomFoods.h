#pragma once

#include "foods/CustomFood.h"
#include "runtime/NameOrder.h"

/// The foods of a person's own: the rows of FOODS above the last stock food.
namespace CustomFoods {
/// The catalogue holds the amounts of 100 grams, a custom food those of one serving. A serving that
/// weighs 100 grams makes the same formula right for both.
inline constexpr double ServingGrams = 100;

QList<NamedKey> Names(); ///< in the order of the names

qint32 HighestKey(); ///< of the last stock food if there is no custom food

/// Appends a row that holds only its key, one above the highest. Gives the key.
qint32 Append();

// The row of that key must exist, else these fail (3021).
CustomFood Read(qint32 id);
void Save(qint32 id, const CustomFood& food);
void Delete(qint32 id); ///< what was logged or cooked with the food stays
} // namespace CustomFoods
