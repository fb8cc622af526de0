#include "store/Dialect.h"

#include "runtime/RuntimeError.h"
#include "store/DialectTokens.h"
#include "store/TextFunctions.h"

#include <algorithm>

#include <sqlite3.h>

namespace {
using DialectTokens::Kind;
using DialectTokens::Token;
using Tokens = std::vector<Token>;

void RefuseComments(const Tokens& tokens) {
    const bool any = std::any_of(tokens.begin(), tokens.end(),
                                 [](const Token& token) { return token.kind == Kind::Comment; });
    if (any)
        throw RuntimeError(-SQLITE_ERROR,
                           QStringLiteral("The statement holds a comment (-- or /*)."));
}

bool IsWholeNumber(const Token& token) {
    return token.kind == Kind::Number &&
           std::all_of(token.text.begin(), token.text.end(),
                       [](QChar at) { return at >= u'0' && at <= u'9'; });
}

/// Removes `TOP n` from the head of the statement and returns n; empty if there is none.
QString TakeTop(Tokens& tokens) {
    if (!tokens[0].Is(QLatin1String("SELECT")))
        return {};
    const size_t top =
        tokens[1].Is(QLatin1String("DISTINCT")) || tokens[1].Is(QLatin1String("ALL")) ? 2 : 1;
    if (!tokens[top].Is(QLatin1String("TOP")) || !IsWholeNumber(tokens[top + 1]))
        return {};
    QString count = tokens[top + 1].text.toString();
    const auto first = tokens.begin() + static_cast<std::ptrdiff_t>(top);
    tokens.erase(first, first + 2);
    return count;
}

bool EndsTableList(const Token& token) {
    return token.kind == Kind::End || token.Is(QLatin1String(";")) ||
           token.Is(QLatin1String("WHERE")) || token.Is(QLatin1String("ORDER"));
}

bool IsName(const Token& token) {
    return token.kind == Kind::Word || token.kind == Kind::Bracketed;
}

QString NameOf(const Token& token) {
    const QStringView name = token.text;
    return (token.kind == Kind::Word ? name : name.sliced(1, name.size() - 2)).toString();
}

/// Adds the row handle to the columns of `SELECT * FROM table` and returns the table. Rows of other
/// statements cannot be changed.
QString AddHandle(Tokens& tokens) {
    const bool simple = tokens.size() > 4 && tokens[0].Is(QLatin1String("SELECT")) &&
                        tokens[1].Is(QLatin1String("*")) && tokens[2].Is(QLatin1String("FROM")) &&
                        IsName(tokens[3]) && EndsTableList(tokens[4]);
    if (!simple)
        return {};
    tokens[1].written = u"rowid AS " + QLatin1String(Dialect::RowHandle) + u", *";
    return NameOf(tokens[3]);
}

bool IsCompared(const Tokens& tokens, size_t at) {
    return tokens[at + 1].kind == Kind::Comparison ||
           (at > 0 && tokens[at - 1].kind == Kind::Comparison);
}

/// The columns' own collation folds only A to Z, so that any tool can use the files; a comparison
/// with a text must fold every letter.
void CollateTexts(Tokens& tokens) {
    const QString collate = u" COLLATE " + QLatin1String(TextFunctions::Collation) + u')';
    for (size_t i = 0; i + 1 < tokens.size(); ++i)
        if (tokens[i].kind == Kind::Text && IsCompared(tokens, i))
            tokens[i].written = u'(' + tokens[i].text + collate;
}

void AddLimit(Tokens& tokens, const QString& count) {
    const auto end = std::find_if(tokens.begin(), tokens.end(), [](const Token& token) {
        return token.kind == Kind::End || token.Is(QLatin1String(";"));
    });
    end->written = u" LIMIT " + count + u' ' + end->text;
}

QString Joined(const Tokens& tokens, qsizetype sourceLength) {
    QString sql;
    sql.reserve(sourceLength + 64);
    for (const Token& token : tokens)
        sql.append(token.blank)
            .append(token.written.isNull() ? token.text : QStringView(token.written));
    return sql;
}
} // namespace

Dialect::Statement Dialect::Adapt(const QString& source, bool updatable) {
    Tokens tokens = DialectTokens::Split(source);
    RefuseComments(tokens);
    const QString limit = TakeTop(tokens);
    const QString table = updatable ? AddHandle(tokens) : QString();
    CollateTexts(tokens);
    if (!limit.isEmpty())
        AddLimit(tokens, limit);
    return {Joined(tokens, source.size()), table};
}
