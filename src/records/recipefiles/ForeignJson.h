#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

/// Reads texts of JSON documents that other programs wrote.
namespace ForeignJson {
/// The object or array of a document. Fails with the place where it breaks off.
QJsonValue Document(const QByteArray& bytes);

/// One text: a number becomes decimal digits, of an object its name, text or url counts, and the
/// parts of an array are joined.
QString Of(const QJsonValue& value);
QStringList Lines(const QJsonValue& value); ///< a text or an array of texts, without empty ones

/// A text of a web page without its marks: "&frac12; cup<br>" is "½ cup".
QString Plain(const QString& text);

/// The value under the name "recipe_yield" or "recipeYield".
QJsonValue Either(const QJsonObject& object, const QString& snakeName);
} // namespace ForeignJson
