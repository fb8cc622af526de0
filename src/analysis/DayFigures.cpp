#include "analysis/DayFigures.h"

#include "model/Nuts.h"
#include "runtime/Convert.h"

DayFigures::DayFigures() {
    for (const Nutrient nutrient : ChartOrder())
        rows_.push_back({nutrient, QLatin1String(Info(nutrient).unit)});
}

DayFigures::DayFigures(const Nuts& sums, const Nuts& targets)
    : DayFigures() {
    energy_ = EnergyShares::Of(sums);
    for (NutrientFigure& row : rows_) {
        row.value = HasData() ? sums[row.nutrient] : 0;
        row.target = targets[row.nutrient];
    }
}

DayFigures DayFigures::WithoutData() const {
    DayFigures empty;
    for (size_t i = 0; i < rows_.size(); ++i)
        empty.rows_[i].target = rows_[i].target;
    return empty;
}

QString DayFigures::Text(const NutrientFigure& row) {
    return DecimalText(NutrientFigure::numFix(row.value)) + u' ' + row.unit;
}
