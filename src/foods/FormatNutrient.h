#pragma once

#include <QString>

/// The form of an amount on a nutrition label: "0" for 0, up to two decimals below 100 (the point
/// stays: "5."), whole with thousands separators from 100 up.
QString FormatNutrient(double value);

/// A text of FormatNutrient as a whole number again, half to even. Text that is no number fails
/// (13).
qint32 WholeNumber(const QString& caption);
