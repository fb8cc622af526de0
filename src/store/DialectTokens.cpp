#include "store/DialectTokens.h"

#include "runtime/Dates.h"

namespace {
using DialectTokens::Kind;
using DialectTokens::Token;

bool IsDigit(QChar at) {
    return at >= u'0' && at <= u'9';
}

bool StartsWord(QChar at) {
    return at.isLetter() || at == u'_' || at.unicode() >= 0x80;
}

bool ContinuesWord(QChar at) {
    return StartsWord(at) || IsDigit(at) || at == u'$';
}

bool IsComparing(QChar at) {
    return at == u'=' || at == u'<' || at == u'>' || at == u'!';
}

template <class Test> qsizetype RunOf(QStringView rest, Test test) {
    qsizetype length = 0;
    while (length < rest.size() && test(rest[length]))
        ++length;
    return length;
}

/// Length including the closing quote; a doubled quote counts as text. 0 without a closing quote.
qsizetype LengthOfQuoted(QStringView rest) {
    const QChar quote = rest.front();
    for (qsizetype i = 1; i < rest.size(); ++i) {
        if (rest[i] != quote)
            continue;
        if (i + 1 == rest.size() || rest[i + 1] != quote)
            return i + 1;
        ++i;
    }
    return 0;
}

Token Closed(Kind kind, QStringView rest, qsizetype length) {
    return length > 0 ? Token{kind, {}, rest.first(length), {}} : Token{Kind::Other, {}, rest, {}};
}

Token DateToken(QStringView rest) {
    const qsizetype end = rest.indexOf(u'#', 1);
    const QDate date = end > 0 ? Dates::Parse(rest.sliced(1, end - 1)) : QDate();
    if (!date.isValid())
        return {Kind::Other, {}, rest.first(1), {}};
    const QString iso = u'\'' + date.toString(Qt::ISODate) + u'\'';
    return {Kind::Date, {}, rest.first(end + 1), iso};
}

qsizetype LengthOfNumber(QStringView rest) {
    qsizetype length = 0;
    while (length < rest.size() && (ContinuesWord(rest[length]) || rest[length] == u'.'))
        ++length;
    return length;
}

Token Next(QStringView rest) {
    const QChar first = rest.front();
    if (first == u'\'')
        return Closed(Kind::Text, rest, LengthOfQuoted(rest));
    if (first == u'"')
        return Closed(Kind::Quoted, rest, LengthOfQuoted(rest));
    if (first == u'[')
        return Closed(Kind::Bracketed, rest, rest.indexOf(u']') + 1);
    if (first == u'#')
        return DateToken(rest);
    if (rest.startsWith(u"--") || rest.startsWith(u"/*"))
        return {Kind::Comment, {}, rest, {}};
    if (StartsWord(first))
        return {Kind::Word, {}, rest.first(RunOf(rest, ContinuesWord)), {}};
    if (IsDigit(first))
        return {Kind::Number, {}, rest.first(LengthOfNumber(rest)), {}};
    if (IsComparing(first))
        return {Kind::Comparison, {}, rest.first(RunOf(rest, IsComparing)), {}};
    return {Kind::Other, {}, rest.first(1), {}};
}
} // namespace

std::vector<Token> DialectTokens::Split(QStringView source) {
    std::vector<Token> tokens;
    tokens.reserve(static_cast<size_t>(source.size() / 4 + 2));
    while (true) {
        const QStringView blank =
            source.first(RunOf(source, [](QChar at) { return at.isSpace(); }));
        source = source.sliced(blank.size());
        tokens.push_back(source.isEmpty() ? Token{Kind::End, {}, {}, {}} : Next(source));
        tokens.back().blank = blank;
        if (source.isEmpty())
            return tokens;
        source = source.sliced(tokens.back().text.size());
    }
}
