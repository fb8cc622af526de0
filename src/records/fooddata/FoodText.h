#pragma once

#include <QString>

/// Makes names and servings of a file such that a food of a person's own may have them.
namespace FoodText {
/// Blanks are reduced to single ones. The characters that a name may not have are replaced: a
/// straight double quote, which is an inch, by a curved one, '~' before a number by "about".
QString Allowed(const QString& text);

/// "1 cup" and 81 give "1 cup (81 g)".
QString WithAmount(const QString& serving, double amount, const QString& unit);
} // namespace FoodText
