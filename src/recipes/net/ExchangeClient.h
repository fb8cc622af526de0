#pragma once

#include "recipes/net/HttpClient.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

/// The recipe exchange on the server that the build names: its tables of recipes and ingredients,
/// with the columns of our own, and the page that mails a recipe. Every call blocks, and every
/// failure is a RuntimeError. A reply is checked for its form only: RemoteValue checks each value.
class ExchangeClient {
public:
    struct Appended {
        qint32 RecipeID;
        QByteArray token; ///< permits to append ingredients
    };
    /// Ingredients in the order of `fields`, the names of all positions of a row.
    struct Ingredients {
        QJsonArray fields;
        QJsonArray rows;       ///< each an array by position
        QJsonArray quantities; ///< one for each row, null if unknown; only sent
    };

    HttpClient& Http() { return http_; }

    /// Empty if the exchange says that it has no such recipe.
    std::optional<QJsonObject> ReadRecipe(qint32 RecipeID);
    Ingredients ReadIngredients(qint32 RecipeID);

    Appended AppendRecipe(const QJsonObject& recipe);
    void AppendIngredients(const Appended& recipe, const Ingredients& ingredients);

    QString SendRecipe(qint32 RecipeID); ///< what the page answers, whatever its status

private:
    QJsonObject Append(const QString& path, const QJsonObject& body, const QByteArray& token);

    HttpClient http_;
};
