#include "analysis/WeightCurve.h"

#include "analysis/WeightAxis.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"

#include <QStringList>

WeightCurve WeightCurve::Of(std::vector<WeightLog::Entry> entries, WeightLog::Extremes extremes) {
    const DateAxis dates(entries.front().day, entries.back().day);
    const WeightAxis weights(extremes.min, extremes.max, dates.Days());
    const double firstMiddle = dates.Labels().front().left + DateAxis::LabelWidth / 2.0;
    WeightCurve curve;
    curve.dates = dates.Labels();
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        curve.weights.push_back(weights.Label(i));
    for (const WeightLog::Entry& entry : entries)
        curve.points.push_back(
            {dates.X(entry.day, firstMiddle), weights.Y(entry.weight), Round(entry.weight)});
    curve.entries = std::move(entries);
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
