#pragma once

#include <QString>

#include <vector>

/// The tokens of a statement. They point into the source, which must outlive them.
namespace DialectTokens {
enum class Kind { Word, Number, Text, Quoted, Bracketed, Date, Comparison, Comment, Other, End };

struct Token {
    Kind kind;
    QStringView blank; ///< what stands before it
    QStringView text;
    QString written; ///< what is handed on in its place; null for the text itself

    bool Is(QLatin1String word) const { return text.compare(word, Qt::CaseInsensitive) == 0; }
};

/// All tokens, then an End. Anything that is not a valid token (a text without its end, an invalid
/// date) is Other, so nothing is lost.
std::vector<Token> Split(QStringView source);
} // namespace DialectTokens
