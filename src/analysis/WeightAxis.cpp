#include "analysis/WeightAxis.h"

#include "runtime/Round.h"

#include <algorithm>

namespace {

constexpr int LabelSteps = WeightAxis::LabelCount - 1;
constexpr int HeightBeyondLabels = 1650;

qint64 PoundsInStep(qint64 range, int days) {
    const int needed = (days + WeightAxis::LabelCount - 1) / WeightAxis::LabelCount;
    return std::max({qint64(Round(double(range) / LabelSteps)), qint64(needed), qint64(1)});
}

} // namespace

WeightAxis::WeightAxis(qint32 min, qint32 max, int days)
    : max_(max) {
    const qint64 range = qint64(max) - min;
    const qint64 step = PoundsInStep(range, days);
    for (int i = 0; i < LabelCount; ++i)
        labels_[size_t(i)] = std::max<qint64>((LabelSteps - i) * step + min, 0);
    scale_ = double(HeightBeyondLabels) / double(std::max<qint64>(range, 1));
}

int WeightAxis::LabelMiddle(int i) {
    return LabelTops[size_t(i)] + LabelHeight / 2;
}

int WeightAxis::Y(double weight) const {
    for (int i = 0; i < LabelSteps; ++i) {
        const double higher = double(Label(i));
        const double lower = double(Label(i + 1));
        if (weight < lower || weight > higher)
            continue;
        const int gap = LabelMiddle(i + 1) - LabelMiddle(i);
        // The division comes last: otherwise rounding errors would move places at half a twip.
        return Round(LabelMiddle(i + 1) - gap * (weight - lower) / (higher - lower));
    }
    return Round(LabelMiddle(0) + (max_ - weight) * scale_);
}
