#pragma once

#include "analysis/DateAxis.h"
#include "analysis/WeightLog.h"

/// A place on the line, in twips, and the weight that stands there.
struct PlotPoint {
    int x, y;
    qint32 weight;
    bool operator==(const PlotPoint&) const = default;
};

/// The weights of a period as a line over a date axis and a weight axis. The axes follow from the
/// entries, not from the period.
struct WeightCurve {
    std::vector<WeightLog::Entry> entries;
    std::vector<DateAxis::Label> dates; ///< the labels that are shown
    std::vector<qint64> weights;        ///< the labels from the top; none before the first entry
    std::vector<PlotPoint> points;
    std::vector<PlotPoint> mean; ///< of the seven days up to each entry; only WithMean sets it
    bool noData = false;         ///< a notice says so

    static WeightCurve Of(std::vector<WeightLog::Entry> entries, WeightLog::Extremes extremes);
    /// For a page: with the mean, and with a weight axis that holds every entry and has small steps
    /// in a long period, too.
    static WeightCurve WithMean(std::vector<WeightLog::Entry> entries);
    WeightCurve AxesAlone() const; ///< without entries, line and notice
    QString Summary() const;       ///< in words
    bool operator==(const WeightCurve&) const = default;

    static constexpr auto Notice = "No weight data To chart";
};
