#pragma once

#include <QString>

class ScaledFood;

/// The rows of recipes and their ingredients in users.mdb. A recipe holds no totals: each of its
/// ingredients holds finished amounts, and every total is a sum of them. Nothing ties the two
/// tables together but what is done here, and every Update commits on its own.
namespace RecipeStore {

/// Appends a recipe as it stands before anything is typed. Gives the key that the store made.
qint32 AddRecipe();

/// Removes the recipe and the first of its ingredients. The other ingredients stay, unreachable, as
/// keys are never used again, and so does all that was logged from the recipe.
void DeleteRecipe(qint32 RecipeID);

/// What the card says of the energy of one serving; `yieldCaption` is the yield as the card shows
/// it. Without ingredients, or where the figure fits no whole number, it says "--".
QString CaloriesPerServing(qint32 RecipeID, const QString& yieldCaption);

/// Appends one ingredient, whole or not at all. The amounts go by place: entry n of the item to
/// field n of the row.
void AddIngredient(qint32 RecipeID, const ScaledFood& item);

/// Removes one ingredient by its own key. Fails (3021) where there is none.
void RemoveIngredient(qint32 ID);

} // namespace RecipeStore
