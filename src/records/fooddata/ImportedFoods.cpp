#include "records/fooddata/ImportedFoods.h"

#include "foods/CustomFood.h"
#include "foods/CustomFoods.h"
#include "records/StoredAmounts.h"
#include "records/fooddata/FoodTally.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <limits>

namespace {
constexpr int MostAppended = 500;

/// Unlike a food that a person types, an amount that is missing stays unknown.
void SetFields(Recordset& row, const CustomFood& food) {
    row.Set(QStringLiteral("FoodName"), food.name);
    row.Set(QStringLiteral("Serv_Desc_A"), food.serving);
    row.Set(QStringLiteral("Serv_GM_WT_A"), CustomFoods::ServingGrams);
    StoredAmounts::Set(row, food.amounts);
}

bool Holds(const Recordset& row, const CustomFood& food) {
    return row[QStringLiteral("FoodName")].Text() == food.name &&
           row[QStringLiteral("Serv_Desc_A")].Text() == food.serving &&
           StoredAmounts::Of(row) == food.amounts;
}
} // namespace

ImportedFoods::ImportedFoods(Mode mode, FoodTally& tally)
    : mode_(mode)
    , tally_(tally)
    , highest_(CustomFoods::HighestKey()) {
    ReadNumbers();
}

void ImportedFoods::ReadNumbers() {
    for (Recordset rows(FoodDB(), QStringLiteral("SELECT ID, NDB_No FROM foods WHERE ID > 23508 "
                                                 "AND NDB_No IS NOT NULL"));
         !rows.AtEnd(); rows.MoveNext())
        if (rows[0].IsKey())
            keys_.insert(rows[1].Text().toUtf8(), rows[0].Integer());
}

void ImportedFoods::Take(const QString& number, const CustomFood& food) {
    const auto known = keys_.constFind(number.toUtf8());
    if (known == keys_.cend())
        Append(number, food);
    else
        Change(*known, food);
}

void ImportedFoods::Append(const QString& number, const CustomFood& food) {
    ++tally_.added;
    if (highest_ == std::numeric_limits<qint32>::max())
        throw RuntimeError(ErrorNumber::Overflow,
                           QStringLiteral("There is no key left for a food."));
    keys_.insert(number.toUtf8(), ++highest_);
    if (mode_ == Mode::CountOnly)
        return;
    if (appended_++ % MostAppended == 0)
        appending_.Open(FoodDB(), QStringLiteral("SELECT * FROM foods WHERE ID < 0"),
                        CursorType::Dynamic, LockType::Optimistic);
    appending_.AddNew();
    appending_.Set(QStringLiteral("ID"), highest_);
    appending_.Set(QStringLiteral("NDB_No"), number);
    SetFields(appending_, food);
    appending_.Update();
}

void ImportedFoods::Change(qint32 key, const CustomFood& food) {
    Recordset row(FoodDB(), u"SELECT * FROM foods WHERE ID = " + QString::number(key),
                  CursorType::Dynamic, LockType::Optimistic);
    const bool isThere = row.RecordCount() == 0 || Holds(row, food);
    ++(isThere ? tally_.unchanged : tally_.updated);
    if (isThere || mode_ == Mode::CountOnly)
        return;
    SetFields(row, food);
    row.Update();
}
