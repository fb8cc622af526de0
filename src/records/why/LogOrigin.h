#pragma once

#include "records/why/Explanation.h"

/// Where the amounts of a log entry come from: the food or the recipe, and the arithmetic.
namespace LogOrigin {
/// Fails (3021) without such an entry.
Explanation Of(qint32 recID);
} // namespace LogOrigin
