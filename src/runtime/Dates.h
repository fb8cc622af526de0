#pragma once

#include <QDate>
#include <QString>

/// Dates are days without a time. A null QDate is an unset date.
/// Text is read month first whatever the locale: m/d/yyyy with / or -, yyyy-mm-dd, and month names.
/// Two-digit years: 00-29 are 2000-2029, 30-99 are 1930-1999. Days and months are never swapped.
namespace Dates {
QDate First(); ///< January 1, 100: the earliest date that a text can name
QDate Last();  ///< December 31 of the year 9999
bool IsDate(QStringView text);
QDate Parse(QStringView text); ///< null if the text is not a date
QString ShortText(QDate date); ///< "4/3/2002", with four digits of the year: as statements hold it
int DaysBetween(QDate from, QDate to);
QDate AddDays(QDate date, int days);
QDate AddMonths(QDate date, int months); ///< the month's last day if it is shorter
int Weekday(QDate date);                 ///< 1 Sunday to 7 Saturday
QString MonthName(int month);            ///< "January" for 1
QString WeekdayName(int weekday);        ///< "Sunday" for 1
QDate LastOfMonth(QDate date);
} // namespace Dates
