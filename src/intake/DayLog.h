#pragma once

#include "foods/Meals.h"
#include "intake/LoggedEntries.h"

#include <array>
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

/// The foods of a day, by the place of their meal in Meals::Names.
using LoggedMeals = std::array<std::vector<LoggedFood>, Meals::Names.size()>;

/// What the current user has logged on one day: foods by meal, and a weight in pounds.
namespace DayLog {
/// The foods of each meal in the order of entry. Foods with a key that is too large for ours are
/// not listed.
LoggedMeals FoodsOf(QDate day);
/// Appends one food, whole or not at all. The row holds finished amounts. Gives its key.
qint32 AddFood(const ScaledFood& item, const QString& meal, QDate day);
/// The message that refuses a copy to the day that the foods are on; empty if it is another day.
QString CopyRefusal(QDate from, QDate to);
/// Appends foods to a day, under their meals. Their amounts stay the same to the bit. Gives the
/// keys of the new rows.
std::vector<qint32> CopyFoods(const LoggedEntries& foods, QDate to);
/// Puts foods under another meal of their day. Foods with a key that is too large stay.
void MoveFoods(const LoggedEntries& foods, int meal);
/// The message that refuses another quantity for a logged food; empty if it is accepted.
QString QuantityRefusal(qint32 RecID, double quantity);
/// Gives a logged food another quantity. Its stored amounts are scaled: what is unknown stays so.
void SetQuantity(qint32 RecID, double quantity);
void RemoveFood(qint32 RecID); ///< fails (3021) if it is gone
void ClearFoods(QDate day);

double Weight(QDate day); ///< 0 if none is entered
/// Keeps one row a day. A weight of 0 takes the entry back.
void SetWeight(QDate day, double weight);
QString WeightRefusal(double weight); ///< the message that refuses it; empty if it is accepted
/// Makes the weight the current user's and derives the targets from it. A weight that is refused
/// changes nothing: false.
bool TakeWeight(double weight);
/// For a weight that a person enters: SetWeight, then TakeWeight.
bool EnterWeight(QDate day, double weight);
/// The current user with the weight and the targets of a day, as its screen shows them. Writes
/// nothing.
User UserOn(QDate day);
} // namespace DayLog
