#include "intake/DayLog.h"

#include "foods/Meals.h"
#include "foods/ScaledFood.h"
#include "model/EnergyTargets.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Attempt.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

QString RowsOf(const char* table, QDate day) {
    return QLatin1String("SELECT * FROM ") + QLatin1String(table) +
           " WHERE UID =" + QString::number(User::Current().UID) + " AND UDATE = #" +
           Dates::ShortText(day) + u'#';
}

QString RowsOfMeal(int meal, QDate day) {
    return "SELECT * FROM USER_FOODS WHERE UID =" + QString::number(User::Current().UID) +
           " AND MEAL = '" + Meals::NameOf(meal).toUpper() + "' AND UDate = #" +
           Dates::ShortText(day) + u'#';
}

/// What another tool wrote and no column of its kind can hold is left out.
void AppendCopy(const Recordset& food, Recordset& copies, QDate day) {
    copies.AddNew();
    for (int column = 1; column < food.FieldCount(); ++column)
        Attempt([&] { copies.Set(column, food[column].Value()); });
    copies.Set(QStringLiteral("UDate"), day);
    copies.Update();
}

} // namespace

std::vector<LoggedFood> DayLog::FoodsOf(int meal, QDate day) {
    std::vector<LoggedFood> foods;
    for (Recordset rows(UserDB(), RowsOfMeal(meal, day)); !rows.AtEnd(); rows.MoveNext())
        if (rows[QStringLiteral("RecID")].IsKey())
            foods.push_back(
                {rows[QStringLiteral("RecID")].Integer(), rows[QStringLiteral("FoodName")].Text(),
                 rows[QStringLiteral("Serving")].Text(), rows[QStringLiteral("QTY")].NumberOr(0),
                 rows[QStringLiteral("Calories")].NumberOr(0)});
    return foods;
}

qint32 DayLog::AddFood(const ScaledFood& item, const QString& meal, QDate day) {
    Recordset rows(UserDB(), RowsOf("USER_FOODS", day), CursorType::Dynamic, LockType::Optimistic);
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

int DayLog::CopyFoods(QDate from, QDate to, std::optional<int> meal) {
    Recordset foods(UserDB(), meal ? RowsOfMeal(*meal, from) : RowsOf("USER_FOODS", from));
    Recordset copies(UserDB(), RowsOf("USER_FOODS", to), CursorType::Dynamic, LockType::Optimistic);
    const int count = foods.RecordCount();
    for (; !foods.AtEnd(); foods.MoveNext())
        AppendCopy(foods, copies, to);
    return count;
}

void DayLog::RemoveFood(qint32 RecID) {
    Recordset row(UserDB(), "SELECT * FROM USER_FOODS WHERE RecID = " + QString::number(RecID),
                  CursorType::Keyset, LockType::Optimistic);
    row.Delete();
}

void DayLog::ClearFoods(QDate day) {
    Recordset rows(UserDB(), RowsOf("USER_FOODS", day), CursorType::Keyset, LockType::Optimistic);
    const int count = rows.RecordCount();
    if (count > 0)
        rows.MoveLast();
    for (int i = 0; i < count; ++i) {
        rows.Delete();
        rows.MovePrevious();
    }
}

double DayLog::Weight(QDate day) {
    const Recordset rows(UserDB(), RowsOf("USER_WEIGHTS", day));
    return rows.AtEnd() ? 0 : rows[QStringLiteral("Weight")].NumberOr(0);
}

void DayLog::SetWeight(QDate day, double weight) {
    Recordset rows(UserDB(), RowsOf("USER_WEIGHTS", day), CursorType::Keyset, LockType::Optimistic);
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
