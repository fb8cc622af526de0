#include "analysis/PeriodFigures.h"

#include "model/Nuts.h"
#include "runtime/Format.h"

PeriodFigures::PeriodFigures(const Nuts& sums, qint32 days, const Nuts& targets) {
    for (const Nutrient nutrient : PeriodOrder())
        rows_.push_back({nutrient, QLatin1String(Info(nutrient).periodUnit), sums[nutrient] / days,
                         targets[nutrient]});
}

QString PeriodFigures::Summary() const {
    QStringList figures;
    for (const NutrientFigure& row : rows_)
        figures << row.Caption() + u": " + row.Spoken();
    return rows_.empty() ? QStringLiteral("No data to chart") : figures.join(u"; ");
}

QString PeriodFigures::Text(const NutrientFigure& row) {
    return numFix(row.value) + u' ' + row.unit;
}

QString PeriodFigures::numFix(double average) {
    if (average == 0)
        return QStringLiteral("0");
    return Format(average, average < 100 ? NumberMask::UpToTwoDecimals : NumberMask::CalorieTotal);
}
