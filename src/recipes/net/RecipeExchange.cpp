#include "recipes/net/RecipeExchange.h"

#include "model/Nutrients.h"
#include "recipes/net/ExchangeClient.h"
#include "recipes/net/RemoteValue.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <algorithm>

namespace {

/// What goes with a recipe, in the order in which it is copied.
struct Column {
    const char* name;
    QVariant (*read)(const QJsonValue&);
};

constexpr Column recipeColumns[] = {
    {"RecipeName", RemoteValue::Text},    {"Instructions", RemoteValue::Text},
    {"RecipeYield", RemoteValue::Number}, {"PrepTime", RemoteValue::Number},
    {"ServingName", RemoteValue::Text},
};

// An ingredient: its key, the amounts, name, serving, key of the recipe, quantity. The keys are
// made anew where it comes to. The quantity travels beside the rows: readers get it in the serving.
constexpr int lastCarried = NutrientCount + 3;
constexpr int foodNamePosition = NutrientCount + 1;
constexpr int servingPosition = NutrientCount + 2;

using Ingredients = ExchangeClient::Ingredients;

QString Number(qint32 number) {
    return QString::number(number);
}

QVariant IngredientValue(const QJsonArray& row, int position) {
    const bool isText = position == foodNamePosition || position == servingPosition;
    return isText ? RemoteValue::Text(row[position]) : RemoteValue::Number(row[position]);
}

QJsonArray FieldNames(const Recordset& rows) {
    QJsonArray names;
    for (int i = 0; i < rows.FieldCount(); ++i)
        names.append(rows.FieldName(i));
    return names;
}

/// In any other order every amount would come to stand under another nutrient.
void RequireOwnOrder(const QJsonArray& fields) {
    const Recordset own(UserDB(), QStringLiteral("SELECT * FROM Ingredients WHERE ID < 1"));
    const auto isSame = [](const QJsonValue& one, const QJsonValue& other) {
        return one.toString().compare(other.toString(), Qt::CaseInsensitive) == 0;
    };
    if (!std::ranges::equal(fields, FieldNames(own), isSame))
        throw RuntimeError(ErrorNumber::ServiceFailed,
                           QStringLiteral("The exchange lists the nutrients in another order."));
}

/// Gives the key that the store made.
QString KeepRecipe(Recordset& recipe, const QJsonObject& remote) {
    for (const Column& column : recipeColumns)
        recipe.Set(QLatin1String(column.name), column.read(remote[QLatin1String(column.name)]));
    recipe.Update();
    const QString id = recipe[QStringLiteral("RecipeID")].Text();
    recipe.Close();
    return id;
}

void KeepIngredients(const QString& id, const QJsonArray& remote) {
    Recordset rows(UserDB(), "SELECT * FROM ingredients WHERE RecipeID = " + id, Cursor::Dynamic,
                   Lock::Optimistic);
    for (const QJsonValue& row : remote) {
        rows.AddNew();
        for (int i = 1; i <= lastCarried; ++i)
            rows.Set(i, IngredientValue(row.toArray(), i));
        rows.Set(QStringLiteral("RecipeID"), id);
        rows.Update();
    }
    rows.Close();
}

QJsonObject RecipeToSend(qint32 RecipeID, const RecipeExchange::Envelope& envelope) {
    Recordset row(UserDB(), "SELECT * FROM Recipes WHERE RecipeID=" + Number(RecipeID),
                  Cursor::Static, Lock::ReadOnly);
    QJsonObject recipe;
    for (const Column& column : recipeColumns) {
        const QString name = QLatin1String(column.name);
        recipe[name] = QJsonValue::fromVariant(row[name].Value());
    }
    recipe[QStringLiteral("EMAILFROM")] = envelope.from;
    recipe[QStringLiteral("EMAILTO")] = envelope.to;
    recipe[QStringLiteral("ISPUBLIC")] = envelope.isPublic;
    row.Close();
    return recipe;
}

QJsonArray IngredientToSend(const Recordset& rows, qint32 remoteID) {
    QJsonArray values{QJsonValue::Null};
    for (int i = 1; i < lastCarried; ++i)
        values.append(QJsonValue::fromVariant(rows[i].Value()));
    values.append(remoteID);
    return values;
}

Ingredients IngredientsToSend(qint32 RecipeID, qint32 remoteID) {
    Recordset rows(UserDB(), "SELECT * FROM ingredients WHERE RecipeID=" + Number(RecipeID),
                   Cursor::Static, Lock::ReadOnly);
    Ingredients all{FieldNames(rows), {}, {}};
    for (; !rows.AtEnd(); rows.MoveNext()) {
        all.rows.append(IngredientToSend(rows, remoteID));
        all.quantities.append(QJsonValue::fromVariant(rows[QStringLiteral("QTY")].Value()));
    }
    rows.Close();
    return all;
}

} // namespace

/// The new row is begun before it is known whether there is such a recipe; if not, it is dropped.
/// Ingredients that do not arrive leave the recipe alone.
bool RecipeExchange::Import(ExchangeClient& exchange, qint32 RecipeID) {
    Recordset recipe(UserDB(), QStringLiteral("SELECT * FROM Recipes WHERE RecipeID < 2"),
                     Cursor::Dynamic, Lock::Optimistic);
    recipe.AddNew();
    const std::optional<QJsonObject> remote = exchange.ReadRecipe(RecipeID);
    if (!remote)
        return false;
    Ingredients ingredients;
    const bool arrived = Attempt([&] { ingredients = exchange.ReadIngredients(RecipeID); });
    if (arrived)
        RequireOwnOrder(ingredients.fields);
    const QString id = KeepRecipe(recipe, *remote);
    if (!arrived)
        throw RuntimeError(ErrorNumber::ServiceFailed,
                           QStringLiteral("The ingredients did not arrive."));
    KeepIngredients(id, ingredients.rows);
    return true;
}

QString RecipeExchange::Send(ExchangeClient& exchange, qint32 RecipeID, const Envelope& envelope) {
    const ExchangeClient::Appended remote = exchange.AppendRecipe(RecipeToSend(RecipeID, envelope));
    exchange.AppendIngredients(remote, IngredientsToSend(RecipeID, remote.RecipeID));
    return exchange.SendRecipe(remote.RecipeID);
}
