#pragma once

#include "analysis/EnergyShares.h"
#include "analysis/NutrientFigure.h"

#include <vector>

class Nuts;

/// A day's intake against the targets, as the daily panel shows it. A day with less than one
/// kilocalorie has no data: all its amounts count as 0.
class DayFigures {
public:
    DayFigures(); ///< no data, and no targets
    DayFigures(const Nuts& sums, const Nuts& targets);
    DayFigures WithoutData() const; ///< with the same targets

    bool HasData() const { return energy_.What() != EnergyShares::Content::NoData; }
    const std::vector<NutrientFigure>& Rows() const { return rows_; } ///< in chart order
    const EnergyShares& Energy() const { return energy_; }
    bool operator==(const DayFigures&) const = default;

    static QString Text(const NutrientFigure& row); ///< "12.34 mg"

private:
    std::vector<NutrientFigure> rows_;
    EnergyShares energy_ = EnergyShares::NoData();
};
