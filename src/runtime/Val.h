#pragma once

#include <QStringView>

/// Lenient conversion of text to a number: blanks, tabs and line breaks are skipped, the leading
/// number (sign, digits, point, exponent) is taken, and 0 is the result where there is none or
/// where it is too large for a double.
double Val(QStringView text);
