#pragma once

#include <QString>

/// The statement that sums the ingredients of a recipe. It gives one row of 31 fields, each named
/// after its column. Without ingredients all fields are null.
QString RecipeSumSQL(qint32 RecipeID);
