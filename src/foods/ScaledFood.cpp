#include "foods/ScaledFood.h"

#include "foods/Logix.h"
#include "model/Nutrients.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double HundredGrams = 100;

/// The nearest number that the log can hold, where the calculation has overflowed.
double Storable(double amount) {
    using Limits = std::numeric_limits<double>;
    return std::isnan(amount) ? 0 : std::clamp(amount, Limits::lowest(), Limits::max());
}

/// Adds the 31 fields from position `first` on. Another order of the operations would change the
/// last bits of what is logged.
void AddAmounts(ScaledFood& item, const Recordset& row, int first, double grams, double qty) {
    for (int position = first; position < first + NutrientCount; ++position) {
        const Field field = row[position];
        item.Add(field.Name(), Storable(field.NumberOr(0) / 100 * grams * qty));
    }
}

void AddIdentity(ScaledFood& item, const QString& name, const QString& serving, qint32 id,
                 double qty) {
    item.Add(QStringLiteral("FOODNAME"), name);
    item.Add(QStringLiteral("SERVING"), serving);
    item.Add(QStringLiteral("ID"), id);
    item.Add(QStringLiteral("QTY"), qty);
}

} // namespace

void ScaledFood::Add(const QString& key, const QVariant& value) {
    if (Find(key))
        throw RuntimeError(ErrorNumber::KeyInUse, u"The chosen food holds '" + key + u"' already.");
    entries_.append({key, value});
}

QVariant ScaledFood::Item(const QString& key) const {
    if (const Entry* entry = Find(key))
        return entry->value;
    throw RuntimeError(ErrorNumber::NoSuchKey, u"The chosen food holds no '" + key + u"'.");
}

QVariant ScaledFood::Item(int position) const {
    if (position < 1 || position > entries_.size())
        throw RuntimeError(ErrorNumber::NoSuchPosition,
                           QStringLiteral("The chosen food has no entry %1.").arg(position));
    return entries_[position - 1].value;
}

const ScaledFood::Entry* ScaledFood::Find(const QString& key) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&key](const Entry& entry) {
        return entry.key.size() == key.size() && entry.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return found == entries_.end() ? nullptr : &*found;
}

ScaledFood ScaledFood::Of(qint32 id, const QString& serv, double qty, bool isRecipe) {
    return isRecipe ? FromRecipe(id, qty) : FromCatalogue(id, serv, qty);
}

ScaledFood ScaledFood::FromCatalogue(qint32 id, const QString& serv, double qty) {
    const QString source = u"SELECT * FROM foods WHERE ID = " + QString::number(id);
    const Recordset row(FoodDB(), source);
    const QString weight =
        serv == u"A" ? QStringLiteral("Serv_GM_WT_A") : QStringLiteral("Serv_GM_WT_B");
    ScaledFood item;
    AddAmounts(item, row, 1, row[weight].NumberOr(HundredGrams), qty);
    const QString name = row[QStringLiteral("FoodName")].Text();
    const Field serving = row[QStringLiteral("Serv_Desc_") + serv];
    AddIdentity(item, name, serving.IsNull() ? QStringLiteral("100 grams") : serving.Text(),
                row[QStringLiteral("ID")].Integer(), qty);
    return item;
}

ScaledFood ScaledFood::FromRecipe(qint32 recipeID, double qty) {
    ScaledFood item;
    AddAmounts(item, Recordset(UserDB(), RecipeSumSQL(recipeID)), 0, HundredGrams, qty);
    const QString source = u"SELECT * FROM Recipes WHERE RecipeID = " + QString::number(recipeID);
    const Recordset row(UserDB(), source);
    AddIdentity(item, row[QStringLiteral("RecipeName")].Text(),
                row[QStringLiteral("ServingName")].Text(),
                row[QStringLiteral("RecipeID")].Integer(), qty);
    return item;
}
