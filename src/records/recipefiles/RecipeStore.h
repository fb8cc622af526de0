#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// The recipes of the records that are open, as drafts with finished ingredients.
namespace RecipeStore {
QList<RecipeDraft> All();
/// Those of the given names, whatever the case. Fails if there is no recipe of a name.
QList<RecipeDraft> Named(const QStringList& names);

bool Has(const RecipeDraft& recipe); ///< one that is equal in everything
void Append(const RecipeDraft& recipe);
} // namespace RecipeStore
