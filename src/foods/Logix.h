#pragma once

#include <QString>

/// The statement that sums all nutrient columns of a recipe's ingredients: one row of 31 fields,
/// each named after its column, null where the recipe has no ingredients.
QString RecipeSumSQL(qint32 RecipeID);
