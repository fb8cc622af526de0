#pragma once

#include <QStringView>

/// Lenient conversion to a number: skips blanks, tabs and line breaks and reads the number at the
/// start (sign, digits, point, exponent). 0 if there is none or it is too large for a double.
double Val(QStringView text);
