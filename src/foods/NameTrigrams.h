#pragma once

#include <QStringList>

/// What the index of names is asked for the words of a search.
namespace NameTrigrams {
/// The trigrams that a name must hold if it matches all words, as a question in a quoted text.
/// Empty if the index cannot answer: no word has three plain characters in a row, or a quote could
/// end the text that it stands in.
///
/// Only ASCII characters count: the index folds the case of others by an older Unicode than LIKE.
QString Question(const QStringList& words);
} // namespace NameTrigrams
