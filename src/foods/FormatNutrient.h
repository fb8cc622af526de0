#pragma once

#include <QString>

/// An amount as a nutrition label shows it: "0" for 0, up to two decimals below 100 (a point is
/// always shown: "5."), a whole number with thousands separators from 100 up.
QString FormatNutrient(double value);

/// Turns a text of FormatNutrient into a whole number: halves go to the even neighbour, a number
/// that is too large becomes the greatest one, and text that is no number becomes 0.
qint32 WholeNumber(const QString& caption);
