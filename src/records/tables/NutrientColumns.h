#pragma once

#include "model/Nutrients.h"
#include "records/tables/RecordsTable.h"

/// The columns of the 31 nutrients.
namespace NutrientColumns {
TableColumn Of(Nutrient nutrient); ///< "Total Fat (g)", totalFat
/// The same with a word behind the name, in another unit: "Total Fat, target (g)", totalFatTarget.
TableColumn Of(Nutrient nutrient, const char* word, const QString& unit);
QString Unit(Nutrient nutrient);
} // namespace NutrientColumns
