#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

class ScaledFood;
class User;

/// One line of a day's list. The other amounts stay in the store, where they are summed.
struct LoggedFood {
    qint32 RecID = 0;
    QString name;
    QString serving;
    double quantity = 0; ///< 0 if the store holds none
    double calories = 0; ///< likewise
};

/// What the current user has logged on one day: foods by meal, and a weight in pounds.
namespace DayLog {
/// The foods of a meal, by its place in Meals::Names, in the order of entry.
std::vector<LoggedFood> FoodsOf(int meal, QDate day);
/// Appends one food, whole or not at all. The row holds finished amounts. Gives its key.
qint32 AddFood(const ScaledFood& item, const QString& meal, QDate day);
/// Appends the foods of a day, or of one meal of it, to another day. Their amounts stay the same to
/// the bit. Gives how many.
int CopyFoods(QDate from, QDate to, std::optional<int> meal = {});
void RemoveFood(qint32 RecID); ///< fails (3021) if it is gone
void ClearFoods(QDate day);

double Weight(QDate day); ///< 0 if none is entered
/// Keeps one row a day. A weight of 0 takes the entry back.
void SetWeight(QDate day, double weight);
QString WeightRefusal(double weight); ///< the message that refuses it; empty if it is accepted
/// Makes the weight the current user's and derives the targets from it. A weight that is refused
/// changes nothing: false.
bool TakeWeight(double weight);
/// What happens to a weight that a person enters: it is kept for the day, then taken.
bool EnterWeight(QDate day, double weight);
/// The current user with the weight and the targets of a day, as its screen shows them. Writes
/// nothing.
User UserOn(QDate day);
} // namespace DayLog
