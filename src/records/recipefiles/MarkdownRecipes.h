#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// Reads and writes recipes as plain Markdown. What we write has, below the text for people, a
/// table with the amounts of each ingredient: read again, the recipe is the same.
namespace MarkdownRecipes {
QList<RecipeDraft> Read(const QString& text);
QString Write(const QList<RecipeDraft>& recipes);
} // namespace MarkdownRecipes
