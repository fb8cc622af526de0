#pragma once

#include "records/why/Explanation.h"

class FoodSources;

/// Where the amounts of a stock food come from: the file, the line and the field of the release.
namespace StockFoodOrigin {
Explanation Of(qint32 id, const FoodSources& sources);
} // namespace StockFoodOrigin
