#pragma once

#include <QString>

#include <vector>

/// The tokens of a statement of the dialect. They view the source, which must outlive them.
namespace DialectTokens {
enum class Kind { Word, Number, Text, Quoted, Bracketed, Date, Comparison, Comment, Other, End };

struct Token {
    Kind kind;
    QStringView blank; ///< what stands before it
    QStringView text;
    QString written; ///< what is handed on in its place; null for the text itself

    bool Is(QLatin1String word) const { return text.compare(word, Qt::CaseInsensitive) == 0; }
};

/// All tokens with an End behind them. What is no token of the dialect (a text without its end, a
/// date that is none) comes out as Other, so that nothing is lost.
std::vector<Token> Split(QStringView source);
} // namespace DialectTokens
