#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// Reads files of MealMaster: many recipes in one file, ingredients in one or two columns.
namespace MealMasterRecipes {
bool IsFile(const QByteArray& bytes);
QList<RecipeDraft> Read(const QByteArray& bytes);
} // namespace MealMasterRecipes
