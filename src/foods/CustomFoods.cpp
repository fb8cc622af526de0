#include "foods/CustomFoods.h"

#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/NamedRows.h"
#include "store/Recordset.h"
#include "store/Schema.h"

namespace {
static_assert(Schema::LastStockFood == 23508); // the conditions of own foods

QString FoodSQL(qint32 id) {
    return QStringLiteral("SELECT * FROM foods WHERE ID = ") + QString::number(id);
}
} // namespace

QList<NamedKey> CustomFoods::Names() {
    return NamedRows::Sorted(FoodDB(), QStringLiteral("SELECT FoodName, ID FROM foods "
                                                      "WHERE ID > 23508 ORDER BY FoodName"));
}

qint32 CustomFoods::HighestKey() {
    const Recordset foods(FoodDB(),
                          QStringLiteral("SELECT Max(ID) AS ID FROM foods WHERE ID >= 23508"));
    return foods[QStringLiteral("ID")].Integer();
}

qint32 CustomFoods::Append() {
    const qint32 id = Round(HighestKey() + 1.0);
    Recordset foods(FoodDB(), QStringLiteral("SELECT * FROM foods WHERE ID < 0"),
                    CursorType::Dynamic, LockType::Optimistic);
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
    Recordset food(FoodDB(), FoodSQL(id), CursorType::Keyset, LockType::Optimistic);
    food.Delete();
}
