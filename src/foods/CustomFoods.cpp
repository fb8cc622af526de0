#include "foods/CustomFoods.h"

#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/NamedRows.h"
#include "store/Recordset.h"

namespace {
/// The catalogue holds the amounts of 100 grams, a custom food those of one serving. A serving that
/// weighs 100 grams makes the same formula right for both.
constexpr double ServingGrams = 100;

QString FoodSQL(qint32 id) {
    return QStringLiteral("SELECT * FROM foods WHERE ID = ") + QString::number(id);
}
} // namespace

QList<NamedKey> CustomFoods::Names() {
    Recordset foods(FoodDB(),
                    QStringLiteral("SELECT * FROM foods WHERE ID > 23508 ORDER BY FoodName"));
    return NamedRows::Sorted(foods, QStringLiteral("FoodName"), QStringLiteral("ID"));
}

/// The store gives the rows in the order of their keys. The set begins with the last stock food, so
/// that it is never empty.
qint32 CustomFoods::Append() {
    Recordset foods(FoodDB(), QStringLiteral("SELECT * FROM foods WHERE ID >= 23508"),
                    CursorType::Dynamic, LockType::Optimistic);
    foods.MoveLast();
    const qint32 id = Round(foods[QStringLiteral("ID")].Number() + 1);
    foods.AddNew();
    foods.Set(QStringLiteral("ID"), id);
    foods.Update();
    return id;
}

CustomFood CustomFoods::Read(qint32 id) {
    const Recordset food(FoodDB(), FoodSQL(id));
    return {food[QStringLiteral("FoodName")].Text(), food[QStringLiteral("Serv_Desc_A")].Text(),
            NutrientAmounts::Of(food)};
}

void CustomFoods::Save(qint32 id, const CustomFood& food) {
    Recordset row(FoodDB(), FoodSQL(id), CursorType::Dynamic, LockType::Optimistic);
    row.Set(QStringLiteral("FoodName"), food.name);
    row.Set(QStringLiteral("Serv_Desc_A"), food.serving);
    row.Set(QStringLiteral("Serv_GM_WT_A"), ServingGrams);
    food.amounts.WriteTo(row);
    row.Update();
}

void CustomFoods::Delete(qint32 id) {
    Recordset food(FoodDB(), QStringLiteral("SELECT * FROM Foods WHERE ID =") + QString::number(id),
                   CursorType::Keyset, LockType::Optimistic);
    food.Delete();
}
