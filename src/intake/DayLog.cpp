#include "intake/DayLog.h"

#include "foods/Meals.h"
#include "foods/ScaledFood.h"
#include "model/EnergyTargets.h"
#include "model/Nutrients.h"
#include "model/User.h"
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
    const QString name = QLatin1String(Meals::Names[static_cast<size_t>(meal)]);
    return "SELECT * FROM USER_FOODS WHERE UID =" + QString::number(User::Current().UID) +
           " AND MEAL = '" + name.toUpper() + "' AND UDate = #" + Dates::ShortText(day) + u'#';
}

} // namespace

std::vector<LoggedFood> DayLog::FoodsOf(int meal, QDate day) {
    std::vector<LoggedFood> foods;
    for (Recordset rows(UserDB(), RowsOfMeal(meal, day)); !rows.AtEnd(); rows.MoveNext())
        if (rows[QStringLiteral("RecID")].IsKey())
            foods.push_back(
                {rows[QStringLiteral("RecID")].Integer(), rows[QStringLiteral("FoodName")].Text(),
                 rows[QStringLiteral("Serving")].Text(), rows[QStringLiteral("QTY")].NumberOr(0)});
    return foods;
}

void DayLog::AddFood(const ScaledFood& item, const QString& meal, QDate day) {
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
