#include "analysis/DateAxis.h"

#include "runtime/Dates.h"
#include "runtime/Round.h"

#include <algorithm>

namespace {

constexpr int MostParts = 4; ///< five labels divide the width into four parts

/// For each number of parts: the labels at their ends.
const std::vector<int> LabelsAt[MostParts + 1] = {
    {0}, {0, 4}, {0, 2, 4}, {0, 1, 3, 4}, {0, 1, 2, 3, 4}};

/// So many that four parts cover all days.
int DaysInPart(int days) {
    return (days + MostParts - 1) / MostParts;
}

} // namespace

DateAxis::DateAxis(QDate first, QDate last)
    : first_(first)
    , days_(Dates::DaysBetween(first, last)) {
    if (days_ == 0) {
        labels_.push_back({0, first, Left + Width / 2.0});
        return;
    }
    const int parts = std::min(days_, MostParts);
    const int step = DaysInPart(days_);
    for (int part = 0; part <= parts; ++part)
        labels_.push_back({LabelsAt[parts][size_t(part)], Dates::AddDays(first, part * step),
                           Left + double(part) * Width / parts});
    twipsPerDay_ = Round(double(Width) / (step * parts));
}

int DateAxis::X(QDate day, double firstLabelMiddle) const {
    return Round(firstLabelMiddle) + Dates::DaysBetween(first_, day) * twipsPerDay_;
}
