#pragma once

#include <QDate>
#include <QString>

/// The number masks. Separators follow the locale; halves round away from zero.
enum class NumberMask {
    UpToTwoDecimals, ///< "0.##": always with the point: "5."
    Thousands,       ///< "###,###": whole number, 0 gives an empty text
    CalorieTotal,    ///< "##,###": like "###,###"
    Percent,         ///< "##,##0%": times 100, whole
    WholeNumber,     ///< "##0"
};

QString Format(double value, NumberMask mask);

/// Removes the locale's separators from a text of Format, except for the decimal point, so that the
/// conversions can read it.
QString PlainNumber(QString formatted);

QString FormatShortDate(QDate date); ///< "mm/dd/yyyy"
QString FormatLongDate(QDate date);  ///< "dddd, mmmm dd, yyyy", English names
