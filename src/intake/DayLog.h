#pragma once

#include <QDate>
#include <QString>

#include <vector>

class ScaledFood;

/// One line of a day's list. The amounts stay in the store, where they are summed.
struct LoggedFood {
    qint32 RecID = 0;
    QString name;
    QString serving;
    double quantity = 0; ///< 0 if the store holds none
};

/// What the current user has logged on one day: foods by meal, and a weight in pounds.
namespace DayLog {
/// The foods of a meal, by its place in Meals::Names, in the order of entry.
std::vector<LoggedFood> FoodsOf(int meal, QDate day);
/// Appends one food, whole or not at all. The row holds finished amounts.
void AddFood(const ScaledFood& item, const QString& meal, QDate day);
void RemoveFood(qint32 RecID); ///< fails (3021) if it is gone
void ClearFoods(QDate day);

double Weight(QDate day); ///< 0 if none is entered
/// Keeps one row a day. A weight of 0 takes the entry back.
void SetWeight(QDate day, double weight);
QString WeightRefusal(double weight); ///< the message that refuses it; empty if it is accepted
/// Makes the weight the current user's and derives the targets from it. A weight that is refused
/// changes nothing: false.
bool TakeWeight(double weight);
} // namespace DayLog
