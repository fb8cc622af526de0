#include "foods/FormatNutrient.h"

#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/Round.h"

QString FormatNutrient(double value) {
    if (value == 0)
        return QStringLiteral("0");
    return Format(value, value < 100 ? NumberMask::UpToTwoDecimals : NumberMask::Thousands);
}

qint32 WholeNumber(const QString& caption) {
    return RoundForDisplay(NumberOrZero(PlainNumber(caption)));
}
