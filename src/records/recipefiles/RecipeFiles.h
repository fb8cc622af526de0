#pragma once

#include "records/recipefiles/RecipeDraft.h"

/// Reads recipes of files of any layout that is known here, and writes our own two.
namespace RecipeFiles {
enum class Format { JsonLd, Markdown };

/// The layout is told by the content. Fails if it is none of ours, or the file is damaged.
QList<RecipeDraft> Read(const QString& path);
QByteArray Write(const QList<RecipeDraft>& recipes, Format format);
} // namespace RecipeFiles
