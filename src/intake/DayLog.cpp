#include "intake/DayLog.h"

#include "foods/Quantity.h"
#include "foods/ScaledFood.h"
#include "intake/LoggedRow.h"
#include "model/EnergyTargets.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Attempt.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/ReadTransaction.h"
#include "store/Recordset.h"

#include <cmath>

namespace {

/// In the order of LoggedFood.
constexpr auto ListedColumns = "RecID, FoodName, Serving, QTY, Calories";

/// A set of these rows that can be changed.
Recordset Changing(const LoggedEntries& foods) {
    return {UserDB(), foods.Statement(), CursorType::Keyset, LockType::Optimistic};
}

/// amount * quantity / old, rounded once.
double Scaled(double amount, double quantity, double old) {
    const double product = amount * quantity;
    const double productRest = std::fma(amount, quantity, -product);
    const double scaled = product / old;
    const double rest = (std::fma(-scaled, old, product) + productRest) / old;
    return std::isfinite(rest) ? scaled + rest : scaled;
}

/// An unknown amount can stay so. Text that another tool wrote cannot be scaled.
bool CanScale(const Field& amount, double quantity, double old) {
    return amount.IsNull() || (amount.Value().typeId() == QMetaType::Double &&
                               std::isfinite(Scaled(amount.Number(), quantity, old)));
}

bool CanScale(const Recordset& row, double quantity) {
    const double old = row[QStringLiteral("QTY")].NumberOr(0);
    for (int column = 1; column <= NutrientCount; ++column)
        if (!CanScale(row[column], quantity, old))
            return false;
    return old != 0;
}

std::vector<LoggedFood> FoodsOfMeal(int meal, QDate day) {
    std::vector<LoggedFood> foods;
    for (Recordset rows(UserDB(), LoggedEntries::Of(day, meal).Statement(ListedColumns));
         !rows.AtEnd(); rows.MoveNext())
        if (const Field key = rows[0]; key.IsKey())
            foods.push_back({key.Integer(), rows[1].Text(), rows[2].Text(), rows[3].NumberOr(0),
                             rows[4].NumberOr(0)});
    return foods;
}

} // namespace

LoggedMeals DayLog::FoodsOf(QDate day) {
    const ReadTransaction oneMoment(UserDB());
    LoggedMeals meals;
    for (size_t meal = 0; meal < meals.size(); ++meal)
        meals[meal] = FoodsOfMeal(int(meal), day);
    return meals;
}

qint32 DayLog::AddFood(const ScaledFood& item, const QString& meal, QDate day) {
    Recordset rows(UserDB(), LoggedEntries::NoneOf(day).Statement(), CursorType::Dynamic,
                   LockType::Optimistic);
    rows.AddNew();
    for (int i = 1; i <= NutrientCount; ++i)
        rows.Set(i, item.Item(rows.FieldName(i)));
    rows.Set(QStringLiteral("UID"), User::Current().UID);
    rows.Set(QStringLiteral("FoodName"), item.Item(QStringLiteral("FOODNAME")));
    rows.Set(QStringLiteral("Serving"), item.Item(QStringLiteral("SERVING")));
    rows.Set(QStringLiteral("ID"), item.Item(QStringLiteral("ID")));
    rows.Set(QStringLiteral("Meal"), meal);
    rows.Set(QStringLiteral("UDate"), day);
    rows.Set(QStringLiteral("QTY"), item.Item(QStringLiteral("QTY")));
    rows.Update();
    return rows[QStringLiteral("RecID")].Integer();
}

QString DayLog::CopyRefusal(QDate from, QDate to) {
    return from == to ? QStringLiteral("Please give two different days.") : QString();
}

std::vector<qint32> DayLog::CopyFoods(const LoggedEntries& foods, QDate to) {
    const std::vector<LoggedRow> rows = LoggedRow::AllOf(foods);
    Recordset copies(UserDB(), LoggedEntries::NoneOf(to).Statement(), CursorType::Dynamic,
                     LockType::Optimistic);
    std::vector<qint32> keys;
    for (const LoggedRow& row : rows) {
        copies.AddNew();
        row.SetIn(copies);
        copies.Set(QStringLiteral("UDate"), to);
        copies.Update();
        keys.push_back(copies[QStringLiteral("RecID")].Integer());
    }
    return keys;
}

void DayLog::MoveFoods(const LoggedEntries& foods, int meal) {
    for (Recordset rows = Changing(foods); !rows.AtEnd(); rows.MoveNext()) {
        if (!rows[QStringLiteral("RecID")].IsKey())
            continue;
        rows.Set(QStringLiteral("Meal"), Meals::NameOf(meal));
        rows.Update();
    }
}

QString DayLog::QuantityRefusal(qint32 RecID, double quantity) {
    if (QString refusal = Quantity::LogRefusal(quantity); !refusal.isEmpty())
        return refusal;
    const Recordset row(UserDB(), LoggedEntries::One(RecID).Statement());
    return row.AtEnd() || !CanScale(row, quantity)
               ? QStringLiteral("The quantity of this entry cannot be changed. Please remove it "
                                "and add the food again.")
               : QString();
}

void DayLog::SetQuantity(qint32 RecID, double quantity) {
    Recordset row = Changing(LoggedEntries::One(RecID));
    const double old = row[QStringLiteral("QTY")].Number();
    for (int column = 1; column <= NutrientCount; ++column)
        if (!row[column].IsNull())
            row.Set(column, Scaled(row[column].Number(), quantity, old));
    row.Set(QStringLiteral("QTY"), quantity);
    row.Update();
}

void DayLog::RemoveFood(qint32 RecID) {
    Recordset row = Changing(LoggedEntries::One(RecID));
    row.Delete();
}

void DayLog::ClearFoods(QDate day) {
    Recordset rows = Changing(LoggedEntries::Of(day));
    const int count = rows.RecordCount();
    rows.MoveLast();
    for (int i = 0; i < count; ++i) {
        rows.Delete();
        rows.MovePrevious();
    }
}

double DayLog::Weight(QDate day) {
    const Recordset rows(UserDB(), RowsOfDay("USER_WEIGHTS", day));
    return rows.AtEnd() ? 0 : rows[QStringLiteral("Weight")].NumberOr(0);
}

void DayLog::SetWeight(QDate day, double weight) {
    Recordset rows(UserDB(), RowsOfDay("USER_WEIGHTS", day), CursorType::Keyset,
                   LockType::Optimistic);
    if (rows.AtEnd())
        rows.AddNew();
    rows.Set(QStringLiteral("UID"), User::Current().UID);
    rows.Set(QStringLiteral("Weight"), weight);
    rows.Set(QStringLiteral("UDate"), day);
    rows.Update();
}

QString DayLog::WeightRefusal(double weight) {
    if (weight > HeaviestWeight)
        return QStringLiteral(
            "Please enter a weight of 1,000,000 pounds or less. To remove the weight entry for "
            "this day, delete the entry from the weight field.");
    if (weight > 0)
        return {};
    return QStringLiteral(
        "Please enter a valid weight greater than '0'. To remove the weight entry for this day, "
        "delete the entry from the weight field.");
}

bool DayLog::TakeWeight(double weight) {
    if (!WeightRefusal(weight).isEmpty())
        return false;
    User::Current().CurrentWeight = Round(weight);
    RecalcTargets();
    return true;
}

bool DayLog::EnterWeight(QDate day, double weight) {
    SetWeight(day, weight);
    return TakeWeight(weight);
}

User DayLog::UserOn(QDate day) {
    User user = User::Current();
    const double weight = Weight(day);
    if (!WeightRefusal(weight).isEmpty())
        return user;
    user.CurrentWeight = Round(weight);
    if (App().AppInfo.AUTOUPDATERDI)
        Attempt([&] { DeriveEnergyTargets(user); });
    return user;
}
