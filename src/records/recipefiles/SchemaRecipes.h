#pragma once

#include "records/recipefiles/RecipeDraft.h"

#include <QJsonValue>

/// Reads and writes recipes as JSON-LD of schema.org. What we write holds, beside the properties
/// for other programs, everything that the store has of a recipe: read again, it is the same.
namespace SchemaRecipes {
inline constexpr QLatin1String OwnPart("halvane"); ///< the property that holds all of it

QList<RecipeDraft> Read(const QJsonValue& document);
/// All blocks of JSON-LD of a web page. One that is broken is passed over where another one holds
/// a recipe; otherwise it fails.
QList<RecipeDraft> ReadPage(const QString& page);
QByteArray Write(const QList<RecipeDraft>& recipes);
} // namespace SchemaRecipes
