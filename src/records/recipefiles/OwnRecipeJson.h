#pragma once

#include "records/recipefiles/RecipeDraft.h"

#include <QJsonObject>

/// Everything that the store has of a recipe, as JSON: read again, it is the same.
namespace OwnRecipeJson {
QJsonObject Write(const RecipeDraft& draft); ///< all ingredients must be finished
RecipeDraft Read(const QJsonObject& object); ///< a value of a wrong kind is null
} // namespace OwnRecipeJson
