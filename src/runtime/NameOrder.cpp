#include "runtime/NameOrder.h"

#include <QCollator>

#include <algorithm>
#include <compare>
#include <string>
#include <tuple>
#include <vector>

namespace {
bool IsPlain(QChar letter) {
    return letter.unicode() < 0x80;
}

uint WithoutCase(QChar plain) {
    return plain >= u'A' && plain <= u'Z' ? plain.unicode() + (u'a' - u'A') : plain.unicode();
}

bool IsPlain(const QString& name) {
    return std::ranges::all_of(name, [](QChar letter) { return IsPlain(letter); });
}

/// Visits a name's letters without case. Most names hold plain letters alone: those take a fast
/// path.
template <class Visit> void ForEachLetter(const QString& name, Visit visit) {
    if (IsPlain(name))
        for (const QChar letter : name)
            visit(WithoutCase(letter));
    else
        for (const uint letter :
             name.toCaseFolded().normalized(QString::NormalizationForm_C).toUcs4())
            visit(letter);
}

/// Ranks letters as a collator orders them. Names are then compared rank by rank: for whole names a
/// collator ranks accents last, so "Äpfel" would come before "apple".
class LetterRanks {
public:
    void Add(const QString& name);
    void Settle();
    std::string KeyOf(const QString& name) const;
    bool InOrder(const NamedKey& one, const NamedKey& next) const;

private:
    std::strong_ordering Compare(const QString& one, const QString& other) const; ///< as their keys
    std::strong_ordering ComparePlain(const QString& one, const QString& other) const;

    std::vector<uint> ranks_; ///< by code point; until settled, 1 for a letter that occurs
    int highestByte_ = 0;     ///< of a rank: how far it is shifted
};

void LetterRanks::Add(const QString& name) {
    ForEachLetter(name, [this](uint letter) {
        if (letter >= ranks_.size())
            ranks_.resize(letter + 1);
        ranks_[letter] = 1;
    });
}

/// Letters that the collator takes for the same have one rank.
void LetterRanks::Settle() {
    const QCollator collator{QLocale(QLocale::English)};
    std::vector<std::pair<QString, uint>> letters;
    for (char32_t letter = 0; letter < ranks_.size(); ++letter)
        if (ranks_[letter])
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
    while ((rank >> highestByte_) > 0xFF)
        highestByte_ += 8;
}

/// Each rank in as many bytes as the highest one needs, the high byte first: keys compare byte by
/// byte as the ranks do.
std::string LetterRanks::KeyOf(const QString& name) const {
    std::string key;
    key.reserve(static_cast<size_t>(name.size()));
    ForEachLetter(name, [&](uint letter) {
        for (int shift = highestByte_; shift >= 0; shift -= 8)
            key += static_cast<char>(ranks_[letter] >> shift);
    });
    return key;
}

bool LetterRanks::InOrder(const NamedKey& one, const NamedKey& next) const {
    const auto order = Compare(one.name, next.name);
    return std::is_lt(order) || (std::is_eq(order) && one.key <= next.key);
}

std::strong_ordering LetterRanks::Compare(const QString& one, const QString& other) const {
    if (IsPlain(one) && IsPlain(other))
        return ComparePlain(one, other);
    return KeyOf(one) <=> KeyOf(other);
}

std::strong_ordering LetterRanks::ComparePlain(const QString& one, const QString& other) const {
    const qsizetype shorter = std::min(one.size(), other.size());
    for (qsizetype i = 0; i < shorter; ++i) {
        if (one[i] == other[i])
            continue;
        const uint left = ranks_[WithoutCase(one[i])];
        const uint right = ranks_[WithoutCase(other[i])];
        if (left != right)
            return left <=> right;
    }
    return one.size() <=> other.size();
}

struct Keyed {
    std::string order;
    NamedKey name;
};

bool IsBefore(const Keyed& one, const Keyed& other) {
    return std::tie(one.order, one.name.key) < std::tie(other.order, other.name.key);
}

void SortByKeys(QList<NamedKey>& names, const LetterRanks& ranks) {
    std::vector<Keyed> sorted;
    sorted.reserve(static_cast<size_t>(names.size()));
    for (NamedKey& name : names) {
        std::string order = ranks.KeyOf(name.name);
        sorted.push_back({std::move(order), std::move(name)});
    }
    std::ranges::stable_sort(sorted, IsBefore);
    std::ranges::transform(sorted, names.begin(),
                           [](Keyed& entry) { return std::move(entry.name); });
}
} // namespace

/// Names that are in order already, which an index of the store gives, are only compared.
void NameOrder::Sort(QList<NamedKey>& keys) {
    LetterRanks ranks;
    for (const NamedKey& key : std::as_const(keys))
        ranks.Add(key.name);
    ranks.Settle();
    const auto outOfOrder = [&](const NamedKey& one, const NamedKey& next) {
        return !ranks.InOrder(one, next);
    };
    if (std::ranges::adjacent_find(std::as_const(keys), outOfOrder) != keys.cend())
        SortByKeys(keys, ranks);
}
