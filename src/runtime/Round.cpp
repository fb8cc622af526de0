#include "runtime/Round.h"

#include "runtime/RuntimeError.h"

#include <QStringBuilder>

#include <algorithm>
#include <cmath>
#include <limits>

qint32 Round(double value) {
    const double rounded = std::nearbyint(value);
    using Limits = std::numeric_limits<qint32>;
    const bool fits = rounded >= Limits::min() && rounded <= Limits::max();
    if (!fits)
        throw RuntimeError(ErrorNumber::Overflow,
                           QString::number(value) +
                               QStringLiteral(" is too large for a whole number."));
    return static_cast<qint32>(rounded);
}

qint32 RoundForDisplay(double value) {
    using Limits = std::numeric_limits<qint32>;
    return std::isnan(value) ? 0 : Round(std::clamp<double>(value, Limits::min(), Limits::max()));
}
