#pragma once

#include <QDate>
#include <QString>

/// What the store holds of the current user's one day, apart from the list of foods.
namespace DayLog {
/// The statement for that day's rows of a log table.
QString RowsOf(const char* table, QDate day);

double Weight(QDate day);                 ///< pounds; 0 where none is entered
void SetWeight(QDate day, double weight); ///< uses the day's row again; 0 stands for no entry
void ClearFoods(QDate day);
} // namespace DayLog
