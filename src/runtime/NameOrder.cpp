#include "runtime/NameOrder.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <vector>

namespace {
using Letters = QList<uint>;

Letters LettersOf(const QString& name) {
    return name.toCaseFolded().normalized(QString::NormalizationForm_C).toUcs4();
}

/// A name with the ranks of its letters, worked out once: a sort compares it many times.
struct Ranked {
    Letters ranks;
    NamedKey key;
};

/// Ranks letters as a collator orders them. Names are then compared rank by rank: for whole names a
/// collator ranks accents last, so "Äpfel" would come before "apple".
class LetterRanks {
public:
    void Add(const Letters& letters) {
        for (const uint letter : letters)
            ranks_.insert(letter, 0);
    }
    void Settle();
    void Apply(Letters& letters) const {
        for (uint& letter : letters)
            letter = ranks_.value(letter);
    }

private:
    QHash<uint, uint> ranks_;
};

/// Letters that the collator takes for the same have one rank.
void LetterRanks::Settle() {
    const QCollator collator{QLocale(QLocale::English)};
    std::vector<std::pair<QString, uint>> letters;
    for (const char32_t letter : ranks_.keys())
        letters.emplace_back(QString::fromUcs4(&letter, 1), letter);
    const auto order = [&](const auto& one, const auto& other) {
        return collator.compare(one.first, other.first) < 0;
    };
    std::ranges::sort(letters, order);
    uint rank = 0;
    for (size_t i = 0; i < letters.size(); ++i) {
        if (i > 0 && order(letters[i - 1], letters[i]))
            ++rank;
        ranks_[letters[i].second] = rank;
    }
}
} // namespace

void NameOrder::Sort(QList<NamedKey>& keys) {
    LetterRanks ranks;
    std::vector<Ranked> names;
    names.reserve(static_cast<size_t>(keys.size()));
    for (NamedKey& key : keys) {
        Letters letters = LettersOf(key.name);
        ranks.Add(letters);
        names.push_back({std::move(letters), std::move(key)});
    }
    ranks.Settle();
    for (Ranked& name : names)
        ranks.Apply(name.ranks);
    std::ranges::stable_sort(names, std::ranges::lexicographical_compare, &Ranked::ranks);
    std::ranges::transform(names, keys.begin(), [](Ranked& name) { return std::move(name.key); });
}
