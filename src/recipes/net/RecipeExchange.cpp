#include "recipes/net/RecipeExchange.h"

#include "model/Nutrients.h"
#include "recipes/RecipeBook.h"
#include "recipes/net/ExchangeClient.h"
#include "recipes/net/RemoteValue.h"
#include "runtime/Attempt.h"

#include <algorithm>

namespace {

// Positions of an ingredient: its key, the amounts, name, serving, key of the recipe, quantity.
// Both keys are made anew where the row arrives. The quantity travels beside the rows, and the
// exchange tells it in the serving.
constexpr int FoodNamePosition = NutrientCount + 1;
constexpr int ServingPosition = NutrientCount + 2;
constexpr int LastCarried = NutrientCount + 3;
constexpr int QuantityPosition = NutrientCount + 4;

using Ingredients = ExchangeClient::Ingredients;

QVariant ReceivedValue(const QJsonValue& value, bool isNumber) {
    return isNumber ? RemoteValue::Number(value) : RemoteValue::Text(value);
}

Recipe ReceivedRecipe(const QJsonObject& remote) {
    Recipe recipe;
    for (const RecipeFieldInfo& field : RecipeFields())
        recipe[field.id] = ReceivedValue(remote[QLatin1String(field.column)], field.isNumber);
    return recipe;
}

QVariantList ReceivedIngredient(const QJsonArray& row) {
    QVariantList values;
    for (int i = 1; i <= LastCarried; ++i)
        values << ReceivedValue(row[i], i != FoodNamePosition && i != ServingPosition);
    return values;
}

/// In any other order each amount would be written under another nutrient.
void RequireOwnOrder(const QJsonArray& fields) {
    const auto isSame = [](const QJsonValue& theirs, const QString& ours) {
        return theirs.toString().compare(ours, Qt::CaseInsensitive) == 0;
    };
    if (!std::ranges::equal(fields, RecipeBook::IngredientColumns(), isSame))
        throw RuntimeError(ErrorNumber::ServiceFailed,
                           QStringLiteral("The exchange lists the nutrients in another order."));
}

QJsonObject RecipeToSend(qint32 RecipeID, const RecipeExchange::Envelope& envelope) {
    const Recipe own = RecipeBook::ReadValues(RecipeID);
    QJsonObject recipe{{QStringLiteral("EMAILFROM"), envelope.from},
                       {QStringLiteral("EMAILTO"), envelope.to},
                       {QStringLiteral("ISPUBLIC"), envelope.isPublic}};
    for (const RecipeFieldInfo& field : RecipeFields())
        recipe[QLatin1String(field.column)] = QJsonValue::fromVariant(own[field.id]);
    return recipe;
}

QJsonArray IngredientToSend(const QVariantList& row, qint32 remoteID) {
    QJsonArray values{QJsonValue::Null};
    for (int i = 1; i < LastCarried; ++i)
        values.append(QJsonValue::fromVariant(row[i]));
    values.append(remoteID);
    return values;
}

Ingredients IngredientsToSend(qint32 RecipeID, qint32 remoteID) {
    const IngredientTable own = RecipeBook::ReadIngredients(RecipeID);
    Ingredients all{QJsonArray::fromStringList(own.columns), {}, {}};
    for (const QVariantList& row : own.rows) {
        all.rows.append(IngredientToSend(row, remoteID));
        all.quantities.append(QJsonValue::fromVariant(row[QuantityPosition]));
    }
    return all;
}

} // namespace

/// The recipe stays even if its ingredients do not arrive.
bool RecipeExchange::Import(ExchangeClient& exchange, qint32 RecipeID) {
    const std::optional<QJsonObject> remote = exchange.ReadRecipe(RecipeID);
    if (!remote)
        return false;
    Ingredients ingredients;
    const bool arrived = Attempt([&] { ingredients = exchange.ReadIngredients(RecipeID); });
    if (arrived)
        RequireOwnOrder(ingredients.fields);
    const qint32 own = RecipeBook::KeepRecipe(ReceivedRecipe(*remote));
    if (!arrived)
        throw RuntimeError(ErrorNumber::ServiceFailed,
                           QStringLiteral("The ingredients did not arrive."));
    RecipeBook::KeepIngredients(own, static_cast<int>(ingredients.rows.size()), [&](int row) {
        return ReceivedIngredient(ingredients.rows[row].toArray());
    });
    return true;
}

QString RecipeExchange::Send(ExchangeClient& exchange, qint32 RecipeID, const Envelope& envelope) {
    const ExchangeClient::Appended remote = exchange.AppendRecipe(RecipeToSend(RecipeID, envelope));
    exchange.AppendIngredients(remote, IngredientsToSend(RecipeID, remote.RecipeID));
    return exchange.SendRecipe(remote.RecipeID);
}
