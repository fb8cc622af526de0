#include "runtime/NameOrder.h"

#include <QCollator>

#include <algorithm>

namespace {
/// A name prepared once, because a sort compares it many times.
struct Sortable {
    QList<uint> letters;
    NamedKey key;

    explicit Sortable(NamedKey named)
        : letters(named.name.toCaseFolded().normalized(QString::NormalizationForm_C).toUcs4())
        , key(std::move(named)) {}
};

/// Names are compared letter by letter: for whole names a collator ranks accents last, so "Äpfel"
/// would come before "apple".
class LetterByLetter {
public:
    bool operator()(const Sortable& one, const Sortable& other) const {
        const qsizetype common = std::min(one.letters.size(), other.letters.size());
        for (qsizetype i = 0; i < common; ++i)
            if (const int order = Compare(one.letters[i], other.letters[i]))
                return order < 0;
        return one.letters.size() < other.letters.size();
    }

private:
    int Compare(char32_t one, char32_t other) const {
        return one == other
                   ? 0
                   : collator_.compare(QString::fromUcs4(&one, 1), QString::fromUcs4(&other, 1));
    }

    QCollator collator_{QLocale(QLocale::English)};
};
} // namespace

void NameOrder::Sort(QList<NamedKey>& keys) {
    QList<Sortable> sortable;
    sortable.reserve(keys.size());
    for (NamedKey& key : keys)
        sortable.emplace_back(std::move(key));
    std::stable_sort(sortable.begin(), sortable.end(), LetterByLetter());
    std::ranges::transform(sortable, keys.begin(),
                           [](Sortable& one) { return std::move(one.key); });
}
