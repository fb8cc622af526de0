#include "foods/NameTrigrams.h"

#include <algorithm>

namespace {
constexpr qsizetype Length = 3;

/// In the statement, a quote is written twice.
bool HasLoneQuote(QString word) {
    return word.remove(QLatin1String("''")).contains(u'\'');
}

/// Not a wildcard, and not a quote: a trigram with one is left out.
bool IsPlain(QChar at) {
    return at >= u' ' && at <= u'~' && at != u'%' && at != u'_' && at != u'\'';
}

void AddTrigrams(QStringList& trigrams, QStringView word) {
    for (qsizetype i = 0; i + Length <= word.size(); ++i) {
        const QStringView trigram = word.sliced(i, Length);
        if (std::ranges::all_of(trigram, IsPlain))
            trigrams << trigram.toString().replace(u'"', QLatin1String("\"\""));
    }
}
} // namespace

QString NameTrigrams::Question(const QStringList& words) {
    if (std::ranges::any_of(words, HasLoneQuote))
        return {};
    QStringList trigrams;
    for (const QString& word : words)
        AddTrigrams(trigrams, word);
    trigrams.removeDuplicates();
    return trigrams.isEmpty() ? QString()
                              : u"'\"" + trigrams.join(QLatin1String("\" AND \"")) + u"\"'";
}
