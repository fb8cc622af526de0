#pragma once

#include "model/Nutrients.h"

#include <QString>

/// One nutrient of a chart: an amount and the target that it is set against.
struct NutrientFigure {
    Nutrient nutrient;
    QLatin1String unit;
    double value = 0;
    double target = 0; ///< 0 where there is none

    QString Caption() const; ///< "Total Fat"
    QString Percent() const; ///< "50%"; empty without a target
    QString Amount() const;  ///< "1000 kcal"
    QString Spoken() const;  ///< "1000 kcal, 50%"
    double Part() const { return PartOfTarget(value, target); }
    bool operator==(const NutrientFigure&) const = default;

    /// Rounded as the charts write it: to two decimals below 100, to a whole number from there on.
    static double numFix(double value);
    /// A target of 0 counts as 0.001.
    static double PartOfTarget(double value, double target);
};
