#pragma once

#include "recipes/net/HttpClient.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

/// The recipe exchange on the server of the build: its tables of recipes and ingredients, under the
/// column names and in the positions of one's own, and the page that mails a recipe. Every call
/// blocks, and every failure is one RuntimeError. Whoever reads a value checks its kind
/// (RemoteValue): a reply is only known to be of the agreed form.
class ExchangeClient {
public:
    struct Appended {
        qint32 RecipeID;
        QByteArray token; ///< allows to append ingredients
    };
    /// Ingredients in the order of `fields`, the names of all positions of a row.
    struct Ingredients {
        QJsonArray fields;
        QJsonArray rows;       ///< each an array by position
        QJsonArray quantities; ///< one a row, null where it is unknown; only sent
    };

    HttpClient& Http() { return http_; }

    /// Nothing where the exchange says that it has no such recipe.
    std::optional<QJsonObject> ReadRecipe(qint32 RecipeID);
    Ingredients ReadIngredients(qint32 RecipeID);

    Appended AppendRecipe(const QJsonObject& recipe);
    void AppendIngredients(const Appended& recipe, const Ingredients& ingredients);

    QString SendRecipe(qint32 RecipeID); ///< what the page answers, whatever its status

private:
    QJsonObject Append(const QString& path, const QJsonObject& body, const QByteArray& token);

    HttpClient http_;
};
