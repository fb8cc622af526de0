#pragma once

#include "analysis/NutrientFigure.h"

#include <vector>

class Nuts;

/// The intake of an average day of a period against the targets, as the bar chart of the report
/// shows it. The average is taken over the days with food.
class PeriodFigures {
public:
    PeriodFigures() = default; ///< no data: there are no rows
    PeriodFigures(const Nuts& sums, qint32 days, const Nuts& targets);

    const std::vector<NutrientFigure>& Rows() const { return rows_; } ///< in the period's order
    QString Summary() const;                                          ///< all rows in words
    bool operator==(const PeriodFigures&) const = default;

    static QString Text(const NutrientFigure& row); ///< "1,000 kcal"
    static QString numFix(double average);          ///< "1,000", "12.", "0"

private:
    std::vector<NutrientFigure> rows_;
};
