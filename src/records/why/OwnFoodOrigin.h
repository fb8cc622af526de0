#pragma once

#include "records/why/Explanation.h"

/// Where the amounts of a food of a person's own come from: its row.
namespace OwnFoodOrigin {
Explanation Of(qint32 id);
} // namespace OwnFoodOrigin
