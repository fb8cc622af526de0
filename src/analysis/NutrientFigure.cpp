#include "analysis/NutrientFigure.h"

#include "runtime/Convert.h"
#include "runtime/Format.h"

namespace {
constexpr double NoTarget = 0.001;
}

QString NutrientFigure::Caption() const {
    return QLatin1String(Info(nutrient).chartCaption);
}

QString NutrientFigure::Percent() const {
    return target == 0 ? QString() : Format(value / target, NumberMask::Percent);
}

QString NutrientFigure::Amount() const {
    return DecimalText(numFix(value)) + u' ' + unit;
}

QString NutrientFigure::Spoken() const {
    return target == 0 ? Amount() : QString(Amount() + u", " + Percent());
}

double NutrientFigure::numFix(double value) {
    if (value == 0)
        return 0;
    const auto mask = value < 100 ? NumberMask::UpToTwoDecimals : NumberMask::Thousands;
    return PlainNumber(Format(value, mask)).toDouble();
}

double NutrientFigure::PartOfTarget(double value, double target) {
    return value / (target == 0 ? NoTarget : target);
}
