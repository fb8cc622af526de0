#pragma once

#include <QString>

/// Files as the first version made them, independent of today's schema: the nutrients of foods and
/// ingredients begin with Calories. Each amount names its column and row.
namespace VersionOne {
/// A user, logs, weights, recipes with ingredients, and keys that were given out and deleted.
void MakeUsers(const QString& path, int ingredients = 3);
/// Two stock foods and two own ones.
void MakeFoods(const QString& path);
/// The amount that these files hold in a column of the row with that key.
double Amount(const QString& column, int key);
} // namespace VersionOne
