#include "analysis/WeightCurve.h"

#include "analysis/WeightAxis.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace {

using Entries = std::vector<WeightLog::Entry>;

constexpr int DaysOfMean = 7;

struct Axes {
    DateAxis dates;
    WeightAxis weights;

    std::vector<PlotPoint> Points(const Entries& entries) const;
    WeightCurve Curve(Entries entries) const;
};

DateAxis DatesOf(const Entries& entries) {
    return {entries.front().day, entries.back().day};
}

std::vector<PlotPoint> Axes::Points(const Entries& entries) const {
    const double firstMiddle = dates.Labels().front().left + DateAxis::LabelWidth / 2.0;
    std::vector<PlotPoint> points;
    for (const WeightLog::Entry& entry : entries)
        points.push_back(
            {dates.X(entry.day, firstMiddle), weights.Y(entry.weight), Round(entry.weight)});
    return points;
}

WeightCurve Axes::Curve(Entries entries) const {
    WeightCurve curve;
    curve.dates = dates.Labels();
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        curve.weights.push_back(weights.Label(i));
    curve.points = Points(entries);
    curve.entries = std::move(entries);
    return curve;
}

double MeanOf(std::span<const WeightLog::Entry> entries) {
    double sum = 0;
    for (const WeightLog::Entry& entry : entries)
        sum += entry.weight;
    return sum / double(entries.size());
}

/// For each entry the mean of the seven days that end with it. Each sum is made anew: a running sum
/// would keep the rounding errors of weights that have left it.
Entries Means(const Entries& entries) {
    Entries means;
    size_t first = 0;
    for (size_t i = 0; i < entries.size(); ++i) {
        while (Dates::DaysBetween(entries[first].day, entries[i].day) >= DaysOfMean)
            ++first;
        means.push_back({MeanOf(std::span(entries).subspan(first, i - first + 1)), entries[i].day});
    }
    return means;
}

/// An axis of whole pounds around all entries, as fine as they allow, however long the period is.
WeightAxis Holding(const Entries& entries) {
    constexpr int steps = WeightAxis::LabelCount - 1;
    const auto [least, greatest] =
        std::ranges::minmax_element(entries, {}, &WeightLog::Entry::weight);
    const qint64 min = qint64(std::floor(least->weight));
    const qint64 range = qint64(std::ceil(greatest->weight)) - min;
    const qint64 max = min + (range + steps - 1) / steps * steps;
    const qint64 most = std::numeric_limits<qint32>::max();
    return {qint32(min), qint32(std::min(max, most)), 0};
}

} // namespace

WeightCurve WeightCurve::Of(std::vector<WeightLog::Entry> entries, WeightLog::Extremes extremes) {
    const DateAxis dates = DatesOf(entries);
    const WeightAxis weights(extremes.min, extremes.max, dates.Days());
    return Axes{dates, weights}.Curve(std::move(entries));
}

WeightCurve WeightCurve::WithMean(std::vector<WeightLog::Entry> entries) {
    const Axes axes{DatesOf(entries), Holding(entries)};
    std::vector<PlotPoint> mean = axes.Points(Means(entries));
    WeightCurve curve = axes.Curve(std::move(entries));
    curve.mean = std::move(mean);
    return curve;
}

WeightCurve WeightCurve::AxesAlone() const {
    WeightCurve axes;
    axes.dates = dates;
    axes.weights = weights;
    return axes;
}

QString WeightCurve::Summary() const {
    if (noData)
        return QLatin1String(Notice);
    QStringList figures;
    for (const WeightLog::Entry& entry : entries)
        figures << Dates::ShortText(entry.day) + u' ' + DecimalText(entry.weight) + u" lbs";
    return figures.join(u", ");
}
