#pragma once

#include "records/recipefiles/RecipeImport.h"

class Session;

/// Asks a person which food stands for each line of a recipe.
namespace RecipeQuestions {
/// Null: the person wants to stop, and nothing may be changed.
std::optional<QList<IngredientChoice>> Ask(const Session& session,
                                           const QList<RecipeImport::Question>& questions);
} // namespace RecipeQuestions
