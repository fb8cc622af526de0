#pragma once

#include "records/recipefiles/RecipeDraft.h"

#include <QJsonObject>

/// Reads the recipes of Mealie: one recipe with either spelling of its keys, or the tables of a
/// whole backup.
namespace MealieRecipes {
bool IsRecipe(const QJsonObject& object);
bool IsBackup(const QJsonObject& object);
RecipeDraft Read(const QJsonObject& recipe);
QList<RecipeDraft> ReadBackup(const QJsonObject& tables);
} // namespace MealieRecipes
