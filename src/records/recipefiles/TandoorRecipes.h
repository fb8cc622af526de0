#pragma once

#include "records/recipefiles/RecipeDraft.h"

#include <QJsonObject>

/// Reads the recipes of Tandoor.
namespace TandoorRecipes {
bool IsRecipe(const QJsonObject& object);
RecipeDraft Read(const QJsonObject& recipe);
} // namespace TandoorRecipes
