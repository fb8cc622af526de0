#pragma once

#include <QDate>
#include <QString>

/// The number masks in use. Separators are the locale's; halves round away from zero.
enum class NumberMask {
    UpToTwoDecimals, ///< "0.##": the point stays even with no decimals after it
    Thousands,       ///< "###,###": whole number, 0 gives an empty text
    CalorieTotal,    ///< "##,###": like "###,###"
    Percent,         ///< "##,##0%": times 100, whole
    WholeNumber,     ///< "##0"
};

QString Format(double value, NumberMask mask);

/// A text of Format without the locale's separators: a point at most, as the conversions read it.
QString PlainNumber(QString formatted);

QString FormatShortDate(QDate date); ///< "mm/dd/yyyy"
QString FormatLongDate(QDate date);  ///< "dddd, mmmm dd, yyyy", English names
