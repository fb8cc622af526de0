#pragma once

#include <QDate>
#include <QString>

/// Strict conversions. A text that is not entirely a number (or a date) fails with a type mismatch
/// (13), a number out of range with an overflow (6). Blanks around it are allowed. The decimal sign
/// is a point.
double ToDouble(QStringView text);
qint32 ToInteger(QStringView text); ///< rounds half to even, like Round
QDate ToDate(QStringView text);     ///< month first, see Dates.h

/// Like ToDouble, but 0 for anything that is not a finite number.
double NumberOrZero(QStringView text);

/// The shortest decimal text that reads back as the same double, without an exponent: "0.5", "12",
/// "-3.25".
QString DecimalText(double value);
