#include "runtime/Round.h"

#include "runtime/RuntimeError.h"

#include <cmath>
#include <limits>

qint32 Round(double value) {
    const double rounded = std::nearbyint(value);
    using Limits = std::numeric_limits<qint32>;
    const bool fits = rounded >= Limits::min() && rounded <= Limits::max();
    if (!fits)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
    return static_cast<qint32>(rounded);
}
