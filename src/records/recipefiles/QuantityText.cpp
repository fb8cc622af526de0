#include "records/recipefiles/QuantityText.h"

#include <QRegularExpression>

namespace {
struct Fraction {
    char16_t sign;
    const char* digits;
};
constexpr Fraction Fractions[] = {
    {u'\u00BC', "1/4"}, {u'\u00BD', "1/2"}, {u'\u00BE', "3/4"}, {u'\u2153', "1/3"},
    {u'\u2154', "2/3"}, {u'\u2155', "1/5"}, {u'\u2156', "2/5"}, {u'\u2157', "3/5"},
    {u'\u2158', "4/5"}, {u'\u2159', "1/6"}, {u'\u215A', "5/6"}, {u'\u215B', "1/8"},
    {u'\u215C', "3/8"}, {u'\u215D', "5/8"}, {u'\u215E', "7/8"},
};

QString InPlainDigits(QString text) {
    for (const Fraction& fraction : Fractions)
        text.replace(QChar(fraction.sign), u' ' + QLatin1String(fraction.digits) + u' ');
    text.replace(QChar(0x2044), u'/');
    text.replace(QChar(0x2013), u'-').replace(QChar(0x2014), u'-').replace(QChar(0xA0), u' ');
    return text.trimmed();
}

/// Digits are limited, so that no number overflows.
const QString Number =
    QStringLiteral("(?:(\\d{1,6})\\s+)?(\\d{1,6})\\s*/"
                   "\\s*(\\d{1,6})|(\\d{1,6}[.,]\\d{1,6}|\\d{1,6}|[.,]\\d{1,6})");

double Value(const QRegularExpressionMatch& match) {
    if (match.capturedView(4).isEmpty()) {
        const double below = match.capturedView(3).toDouble();
        return match.capturedView(1).toDouble() +
               (below == 0 ? 0 : match.capturedView(2).toDouble() / below);
    }
    return match.captured(4).replace(u',', u'.').toDouble();
}

QuantityText::Amount First(const QString& text) {
    static const QRegularExpression number(u"^(?:" + Number + u")");
    const QRegularExpressionMatch match = number.match(text);
    if (!match.hasMatch())
        return {std::nullopt, text};
    return {Value(match), text.mid(match.capturedLength())};
}
} // namespace

QuantityText::Amount QuantityText::Leading(const QString& text) {
    static const QRegularExpression range(QStringLiteral("^\\s*(?:-|to\\b|or\\b)\\s*(?=[\\d.,])"));
    const Amount from = First(InPlainDigits(text));
    const QRegularExpressionMatch match = range.match(from.rest);
    if (!from.value || !match.hasMatch())
        return {from.value, from.rest.trimmed()};
    const Amount to = First(from.rest.mid(match.capturedLength()));
    if (!to.value || *to.value < *from.value)
        return {from.value, from.rest.trimmed()};
    return {(*from.value + *to.value) / 2, to.rest.trimmed()};
}
