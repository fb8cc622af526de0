#include "model/Nuts.h"

#include "runtime/Round.h"

#include <algorithm>
#include <limits>

namespace {
constexpr double Least = std::numeric_limits<qint32>::min();
constexpr double Greatest = std::numeric_limits<qint32>::max();
} // namespace

void Nuts::Set(Nutrient id, double value) {
    values_[static_cast<size_t>(id)] =
        Info(id).whole ? RoundForDisplay(value) : std::clamp(value, Least, Greatest);
}
