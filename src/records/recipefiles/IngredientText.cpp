#include "records/recipefiles/IngredientText.h"

#include "records/recipefiles/QuantityText.h"

#include <QRegularExpression>
#include <QSet>

namespace {
/// They say what is done with the food, not which food it is.
const QSet<QString>& Fillers() {
    static const QSet<QString> words{
        "a",        "an",      "and",      "of",    "the",    "to",      "taste",
        "about",    "or",      "plus",     "for",   "fresh",  "freshly", "finely",
        "coarsely", "chopped", "minced",   "diced", "sliced", "grated",  "peeled",
        "rinsed",   "drained", "optional", "some",  "if",     "needed",  "into",
        "cut",      "with",    "in",       "extra", "heaped", "level"};
    return words;
}

QStringList WordsOf(const QString& text) {
    static const QRegularExpression others(QStringLiteral("[^\\p{L}\\p{N}-]+"));
    QStringList words;
    for (const QString& word : text.toLower().split(others, Qt::SkipEmptyParts))
        if (!Fillers().contains(word))
            words << word;
    return words;
}

/// "1 (15 oz) can of beans" is 15 oz of beans: the size in brackets goes before the number of cans.
bool TakeSize(QString& rest, IngredientText& text) {
    static const QRegularExpression size(QStringLiteral("^\\(\\s*([^()]{1,40})\\)\\s*"));
    const QRegularExpressionMatch match = size.match(rest);
    if (!match.hasMatch())
        return false;
    const QuantityText::Amount inside = QuantityText::Leading(match.captured(1));
    qsizetype length = 0;
    const KitchenUnit* unit = KitchenUnit::Leading(inside.rest, length);
    if (!inside.value || !unit)
        return false;
    rest = rest.mid(match.capturedLength());
    text.quantity = *text.quantity * *inside.value;
    text.unit = unit;
    return true;
}

void TakeUnit(QString& rest, IngredientText& text) {
    const bool hasSize = TakeSize(rest, text);
    qsizetype length = 0;
    const KitchenUnit* unit = KitchenUnit::Leading(rest, length);
    if (!unit)
        return;
    rest = rest.mid(length).trimmed();
    if (!hasSize)
        text.unit = unit;
}
} // namespace

IngredientText IngredientText::Of(const QString& line) {
    static const QRegularExpression cut(QStringLiteral("[,;(]"));
    const QuantityText::Amount amount = QuantityText::Leading(line);
    IngredientText text{amount.value};
    QString rest = amount.rest;
    if (text.quantity)
        TakeUnit(rest, text);
    const qsizetype end = rest.indexOf(cut);
    text.words = WordsOf(end < 0 ? rest : rest.left(end));
    if (end >= 0)
        text.details = WordsOf(rest.mid(end));
    return text;
}
