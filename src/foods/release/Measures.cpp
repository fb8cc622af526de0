#include "foods/release/Measures.h"

#include "foods/release/FoodColumns.h"

#include <algorithm>

namespace {

/// The two files write the same measure with different blanks and commas: "1 serving,  2 oz" and "1
/// serving 2 oz".
QString Bare(const QString& text) {
    QString bare;
    for (const QChar letter : text)
        if (letter.isLetterOrNumber() || letter == u'.')
            bare += letter.toLower();
    return bare;
}

bool Has(const QList<Measure>& measures, const Measure& measure) {
    return std::ranges::any_of(
        measures, [&](const Measure& one) { return Bare(one.text) == Bare(measure.text); });
}

QList<Measure> OwnMeasures(const ReleaseTable::Record& abbreviated) {
    QList<Measure> measures;
    for (const int field : {47, 49}) {
        const Measure one{AbbrevField(abbreviated, field + 1), AbbrevField(abbreviated, field),
                          field};
        if (!one.text.isEmpty() && !one.grams.isEmpty())
            measures << one;
    }
    return measures;
}

} // namespace

Measures::Measures(const ReleaseTable& weights) {
    for (const ReleaseTable::Record& record : weights.Records())
        weights_[record.Field(1)] << Weight{
            record.Field(2).toInt(),
            {QString(record.Field(3) + u' ' + record.Field(4)), record.Field(5), 0, record.line}};
    for (QList<Weight>& list : weights_)
        std::ranges::stable_sort(list, {}, &Weight::sequence);
}

Servings Measures::Choose(const QString& number, const ReleaseTable::Record& abbreviated) const {
    QList<Measure> chosen = OwnMeasures(abbreviated);
    Servings servings;
    servings.ownMeasures = int(chosen.size());
    servings.secondOnly = chosen.size() == 1 && AbbrevField(abbreviated, 47).isEmpty();
    for (const Weight& weight : weights_.value(number))
        if (chosen.size() < 2 && !Has(chosen, weight.measure))
            chosen << weight.measure;
    servings.filledMeasures = int(chosen.size()) - servings.ownMeasures;
    if (chosen.size() < 2)
        chosen << Measure{QStringLiteral("100 grams"), QStringLiteral("100")};
    servings.a = chosen[0];
    servings.b = chosen.value(1);
    return servings;
}
