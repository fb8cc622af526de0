#include "recipes/net/ExchangeClient.h"

#include "recipes/net/RemoteValue.h"
#include "runtime/RuntimeError.h"
#include "runtime/Server.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

// The longest replies that are read, in bytes: many times the largest recipe and the longest
// sentence.
constexpr qint64 LongestDocument = 8 << 20;
constexpr qint64 LongestSentence = 64 << 10;

/// Rows sent in one call: few enough for a server that limits the size of a request.
constexpr qsizetype RowsAtOnce = 100;

enum Status { Done = 200, Created = 201, Unknown = 404 };

QString RecipesPath(qint32 RecipeID) {
    return "/halvane/api/recipes/" + QString::number(RecipeID);
}

[[noreturn]] void Refuse() {
    throw RuntimeError(ErrorNumber::ServiceFailed,
                       QStringLiteral("The exchange did not answer as agreed."));
}

QJsonObject ObjectIn(const HttpReply& reply, int status) {
    const QJsonDocument document = QJsonDocument::fromJson(reply.body);
    if (reply.status != status || !document.isObject())
        Refuse();
    return document.object();
}

/// The token goes into a header unchanged, so it must be one visible word.
QByteArray TokenIn(const QJsonValue& value) {
    QByteArray token = RemoteValue::Text(value).toString().toUtf8();
    const auto isVisible = [](char c) { return c > ' ' && c < 0x7f; };
    if (token.isEmpty() || !std::all_of(token.cbegin(), token.cend(), isVisible))
        Refuse();
    return token;
}

QJsonArray Slice(const QJsonArray& values, qsizetype from) {
    QJsonArray slice;
    for (qsizetype i = from; i < std::min(values.size(), from + RowsAtOnce); ++i)
        slice.append(values.at(i));
    return slice;
}

} // namespace

/// The exchange gives a reason when it has no such recipe. A 404 without one comes from another
/// server, and is a failure.
std::optional<QJsonObject> ExchangeClient::ReadRecipe(qint32 RecipeID) {
    const HttpReply reply = http_.Get(Server::Address() + RecipesPath(RecipeID), LongestDocument);
    if (reply.status == Unknown && ObjectIn(reply, Unknown)[QLatin1String("reason")].isString())
        return std::nullopt;
    const QJsonObject recipe = ObjectIn(reply, Done);
    if (RemoteValue::Count(recipe[QLatin1String("RecipeID")]) != RecipeID)
        Refuse();
    return recipe;
}

ExchangeClient::Ingredients ExchangeClient::ReadIngredients(qint32 RecipeID) {
    const QString address = Server::Address() + RecipesPath(RecipeID) + "/ingredients";
    const QJsonObject table = ObjectIn(http_.Get(address, LongestDocument), Done);
    const QJsonValue rows = table[QLatin1String("rows")];
    if (!rows.isArray())
        Refuse();
    return {table[QLatin1String("fields")].toArray(), rows.toArray(), {}};
}

ExchangeClient::Appended ExchangeClient::AppendRecipe(const QJsonObject& recipe) {
    const QJsonObject created = Append(QStringLiteral("/halvane/api/recipes"), recipe, {});
    return {RemoteValue::Count(created[QLatin1String("RecipeID")]),
            TokenIn(created[QLatin1String("token")])};
}

void ExchangeClient::AppendIngredients(const Appended& recipe, const Ingredients& ingredients) {
    const QString path = RecipesPath(recipe.RecipeID) + "/ingredients";
    for (qsizetype from = 0; from < ingredients.rows.size(); from += RowsAtOnce) {
        const QJsonArray rows = Slice(ingredients.rows, from);
        const QJsonObject body{{QStringLiteral("fields"), ingredients.fields},
                               {QStringLiteral("rows"), rows},
                               {QStringLiteral("quantities"), Slice(ingredients.quantities, from)}};
        const QJsonObject added = Append(path, body, recipe.token);
        if (RemoteValue::Count(added[QLatin1String("added")]) != rows.size())
            Refuse();
    }
}

QJsonObject ExchangeClient::Append(const QString& path, const QJsonObject& body,
                                   const QByteArray& token) {
    const QByteArray json = QJsonDocument(body).toJson(QJsonDocument::Compact);
    return ObjectIn(http_.PostJson(Server::Address() + path, json, token, LongestDocument),
                    Created);
}

QString ExchangeClient::SendRecipe(qint32 RecipeID) {
    const QString address =
        Server::Address() + "/halvane/sendrecipe.asp?recID=" + QString::number(RecipeID);
    return QString::fromUtf8(http_.GetOnce(address, LongestSentence).body);
}
