#include "recipes/RecipeStore.h"

#include "foods/ScaledFood.h"
#include "model/Nutrients.h"
#include "recipes/RecipeTexts.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "runtime/Val.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {

void DeleteFirst(const QString& source, Lock lock) {
    Recordset rows(UserDB(), source, Cursor::Keyset, lock);
    if (rows.RecordCount() > 0)
        rows.Delete();
    rows.Close();
}

/// A yield of next to nothing would make more of a serving than a whole number holds: that is no
/// reason to keep the recipe from being opened and mended.
QString WholeNumber(double value) {
    try {
        return QString::number(Round(value));
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

qint32 RecipeStore::AddRecipe() {
    Recordset rows(UserDB(), QStringLiteral("SELECT * FROM Recipes"), Cursor::Dynamic,
                   Lock::Optimistic);
    RecipeTexts texts = RecipeTexts::OfNewRecipe();
    texts[RecipeField::Serving].clear(); // asked for on saving
    rows.AddNew();
    texts.Write(rows);
    rows.Update();
    rows.MoveLast();
    return rows[QStringLiteral("RecipeID")].Integer();
}

void RecipeStore::DeleteRecipe(qint32 RecipeID) {
    const QString id = QString::number(RecipeID);
    DeleteFirst("SELECT * FROM Ingredients WHERE RecipeID =" + id, Lock::Pessimistic);
    DeleteFirst("SELECT * FROM Recipes WHERE RecipeID =" + id, Lock::Optimistic);
}

QString RecipeStore::CaloriesPerServing(qint32 RecipeID, const QString& yieldCaption) {
    const QString none = QStringLiteral("Calories: --");
    const Recordset sums(
        UserDB(),
        "SELECT Sum(Ingredients.Calories) AS [SUMCals] From Ingredients WHERE RecipeID = " +
            QString::number(RecipeID),
        Cursor::Dynamic, Lock::Optimistic);
    const Field sum = sums[QStringLiteral("SUMCals")];
    if (sum.IsNull())
        return none;
    const double yield = Val(yieldCaption);
    const QString perServing = WholeNumber(sum.Number() / (yield == 0 ? 1 : yield));
    return perServing.isEmpty() ? none : "Calories: " + perServing + " per serving";
}

void RecipeStore::AddIngredient(qint32 RecipeID, const ScaledFood& item) {
    Recordset rows(UserDB(),
                   "SELECT * FROM Ingredients WHERE RecipeID =" + QString::number(RecipeID),
                   Cursor::Dynamic, Lock::Optimistic);
    rows.AddNew();
    for (int i = 1; i <= NutrientCount; ++i)
        rows.Set(i, item.Item(i));
    rows.Set(QStringLiteral("FoodName"), item.Item(QStringLiteral("FOODNAME")));
    rows.Set(QStringLiteral("Serving"), item.Item(QStringLiteral("SERVING")));
    rows.Set(QStringLiteral("RecipeID"), RecipeID);
    rows.Set(QStringLiteral("QTY"), item.Item(QStringLiteral("QTY")));
    rows.Update();
    rows.Close();
}

void RecipeStore::RemoveIngredient(qint32 ID) {
    Recordset row(UserDB(), "SELECT * FROM Ingredients WHERE ID = " + QString::number(ID),
                  Cursor::Keyset, Lock::Optimistic);
    row.Delete();
    row.Close();
}
