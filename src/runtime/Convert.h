#pragma once

#include <QDate>
#include <QString>

/// Strict conversions: text that is not wholly of the kind asked for fails with a type mismatch
/// (13), a number out of range with overflow (6). Blanks around the text are allowed. The decimal
/// sign is a point.
double ToDouble(QStringView text);
qint32 ToInteger(QStringView text); ///< rounds half to even, like Round
QDate ToDate(QStringView text);     ///< month first, see Dates.h

/// ToDouble, with 0 for anything that is not a finite number.
double NumberOrZero(QStringView text);

/// Shortest decimal text that reads back as the same double, never with an exponent: "0.5", "12",
/// "-3.25".
QString DecimalText(double value);
