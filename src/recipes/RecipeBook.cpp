#include "recipes/RecipeBook.h"

#include "foods/ScaledFood.h"
#include "model/Nutrients.h"
#include "runtime/Attempt.h"
#include "runtime/Round.h"
#include "runtime/Val.h"
#include "store/Connection.h"
#include "store/NamedRows.h"
#include "store/Recordset.h"

namespace {

QString Number(qint32 key) {
    return QString::number(key);
}

void SetFields(Recordset& row, const Recipe& recipe) {
    for (const RecipeFieldInfo& field : RecipeFields())
        row.Set(QLatin1String(field.column), recipe[field.id]);
}

void DeleteFirst(const QString& source, LockType lock) {
    Recordset rows(UserDB(), source, CursorType::Keyset, lock);
    if (rows.RecordCount() > 0)
        rows.Delete();
}

/// A tiny yield overflows the figure; the recipe must still open. Empty then.
QString WholeNumber(double value) {
    QString number;
    Attempt([&] { number = QString::number(Round(value)); });
    return number;
}

QStringList ColumnsOf(const Recordset& rows) {
    QStringList names;
    for (int i = 0; i < rows.FieldCount(); ++i)
        names << rows.FieldName(i);
    return names;
}

QVariantList ValuesOf(const Recordset& row) {
    QVariantList values;
    for (int i = 0; i < row.FieldCount(); ++i)
        values << row[i].Value();
    return values;
}

} // namespace

QList<NamedKey> RecipeBook::Names() {
    return NamedRows::Sorted(UserDB(), QStringLiteral("SELECT RecipeName, RecipeID FROM Recipes"));
}

RecipeTexts RecipeBook::Read(qint32 RecipeID) {
    const Recordset row(UserDB(), "SELECT * FROM Recipes where RecipeID = " + Number(RecipeID));
    RecipeTexts texts;
    for (const RecipeFieldInfo& field : RecipeFields())
        texts[field.id] = row[QLatin1String(field.column)].Text();
    return texts;
}

void RecipeBook::ReadInto(RecipeTexts& texts, qint32 RecipeID) {
    Recordset row;
    Attempt(
        [&] { row.Open(UserDB(), "SELECT * FROM Recipes WHERE RecipeID =" + Number(RecipeID)); });
    for (const RecipeFieldInfo& field : RecipeFields())
        Attempt([&] { texts[field.id] = row[QLatin1String(field.column)].Text(); });
}

qint32 RecipeBook::AddRecipe() {
    Recordset rows(UserDB(), QStringLiteral("SELECT * FROM Recipes"), CursorType::Dynamic,
                   LockType::Optimistic);
    RecipeTexts texts = RecipeTexts::OfNewRecipe();
    texts[RecipeField::Serving].clear(); // asked for on saving
    rows.AddNew();
    SetFields(rows, texts.Values());
    rows.Update();
    rows.MoveLast();
    return rows[QStringLiteral("RecipeID")].Integer();
}

const RecipeCheck* RecipeBook::SaveRecipe(qint32 RecipeID, const RecipeTexts& texts) {
    if (const RecipeCheck* failed = texts.FirstFailed())
        return failed;
    Recordset row(UserDB(), "SELECT * FROM Recipes WHERE RecipeID =" + Number(RecipeID),
                  CursorType::Dynamic, LockType::Optimistic);
    SetFields(row, texts.Values());
    row.Update();
    return nullptr;
}

void RecipeBook::DeleteRecipe(qint32 RecipeID) {
    DeleteFirst("SELECT * FROM Ingredients WHERE RecipeID =" + Number(RecipeID),
                LockType::Pessimistic);
    DeleteFirst("SELECT * FROM Recipes WHERE RecipeID =" + Number(RecipeID), LockType::Optimistic);
}

QString RecipeBook::CaloriesPerServing(qint32 RecipeID, const QString& yieldCaption) {
    const QString none = QStringLiteral("Calories: --");
    const Recordset sums(
        UserDB(),
        "SELECT Sum(Ingredients.Calories) AS [SUMCals] From Ingredients WHERE RecipeID = " +
            Number(RecipeID),
        CursorType::Dynamic, LockType::Optimistic);
    const Field sum = sums[QStringLiteral("SUMCals")];
    if (sum.IsNull())
        return none;
    const double yield = Val(yieldCaption);
    const QString perServing = WholeNumber(sum.Number() / (yield == 0 ? 1 : yield));
    return perServing.isEmpty() ? none : "Calories: " + perServing + " per serving";
}

std::vector<Ingredient> RecipeBook::Ingredients(qint32 RecipeID) {
    std::vector<Ingredient> ingredients;
    for (Recordset rows(UserDB(), "SELECT * FROM Ingredients WHERE RecipeID =" + Number(RecipeID));
         !rows.AtEnd(); rows.MoveNext())
        if (rows[QStringLiteral("ID")].IsKey())
            ingredients.push_back(
                {rows[QStringLiteral("ID")].Integer(), rows[QStringLiteral("FoodName")].Text(),
                 rows[QStringLiteral("Serving")].Text(), rows[QStringLiteral("QTY")].NumberOr(1)});
    return ingredients;
}

void RecipeBook::AddIngredient(qint32 RecipeID, const ScaledFood& item) {
    Recordset rows(UserDB(), "SELECT * FROM Ingredients WHERE RecipeID =" + Number(RecipeID),
                   CursorType::Dynamic, LockType::Optimistic);
    rows.AddNew();
    for (int i = 1; i <= NutrientCount; ++i)
        rows.Set(i, item.Item(i));
    rows.Set(QStringLiteral("FoodName"), item.Item(QStringLiteral("FOODNAME")));
    rows.Set(QStringLiteral("Serving"), item.Item(QStringLiteral("SERVING")));
    rows.Set(QStringLiteral("RecipeID"), RecipeID);
    rows.Set(QStringLiteral("QTY"), item.Item(QStringLiteral("QTY")));
    rows.Update();
}

void RecipeBook::RemoveIngredient(qint32 ID) {
    Recordset row(UserDB(), "SELECT * FROM Ingredients WHERE ID = " + Number(ID),
                  CursorType::Keyset, LockType::Optimistic);
    row.Delete();
}

Recipe RecipeBook::ReadValues(qint32 RecipeID) {
    const Recordset row(UserDB(), "SELECT * FROM Recipes WHERE RecipeID=" + Number(RecipeID));
    Recipe recipe;
    for (const RecipeFieldInfo& field : RecipeFields())
        recipe[field.id] = row[QLatin1String(field.column)].Value();
    return recipe;
}

IngredientTable RecipeBook::ReadIngredients(qint32 RecipeID) {
    Recordset rows(UserDB(), "SELECT * FROM ingredients WHERE RecipeID=" + Number(RecipeID));
    IngredientTable table{ColumnsOf(rows), {}};
    for (; !rows.AtEnd(); rows.MoveNext())
        table.rows.push_back(ValuesOf(rows));
    return table;
}

QStringList RecipeBook::IngredientColumns() {
    return ColumnsOf(Recordset(UserDB(), QStringLiteral("SELECT * FROM Ingredients WHERE ID < 1")));
}

qint32 RecipeBook::KeepRecipe(const Recipe& recipe) {
    Recordset row(UserDB(), QStringLiteral("SELECT * FROM Recipes WHERE RecipeID < 2"),
                  CursorType::Dynamic, LockType::Optimistic);
    row.AddNew();
    SetFields(row, recipe);
    row.Update();
    return row[QStringLiteral("RecipeID")].Integer();
}

void RecipeBook::KeepIngredients(qint32 RecipeID, int count,
                                 const std::function<QVariantList(int)>& read) {
    Recordset rows(UserDB(), "SELECT * FROM ingredients WHERE RecipeID = " + Number(RecipeID),
                   CursorType::Dynamic, LockType::Optimistic);
    for (int row = 0; row < count; ++row) {
        int position = 0;
        rows.AddNew();
        for (const QVariant& value : read(row))
            rows.Set(++position, value);
        rows.Set(QStringLiteral("RecipeID"), RecipeID);
        rows.Update();
    }
}
