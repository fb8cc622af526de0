#include "runtime/NameOrder.h"

#include <QCollator>

#include <algorithm>
#include <string>
#include <vector>

namespace {
using Letters = QList<uint>;

bool IsPlain(QChar letter) {
    return letter.unicode() < 0x80;
}

uint WithoutCase(QChar plain) {
    return plain >= u'A' && plain <= u'Z' ? plain.unicode() + (u'a' - u'A') : plain.unicode();
}

/// A name's letters without case. Most names hold plain letters alone: those take a fast path.
Letters LettersOf(const QString& name) {
    if (!std::ranges::all_of(name, IsPlain))
        return name.toCaseFolded().normalized(QString::NormalizationForm_C).toUcs4();
    Letters letters(name.size());
    std::ranges::transform(name, letters.begin(), WithoutCase);
    return letters;
}

/// Ranks letters as a collator orders them. Names are then compared rank by rank: for whole names a
/// collator ranks accents last, so "Äpfel" would come before "apple".
class LetterRanks {
public:
    void Add(const Letters& letters);
    void Settle();
    std::string KeyOf(const Letters& letters) const;

private:
    std::vector<uint> ranks_; ///< by code point; until settled, 1 for a letter that occurs
};

void LetterRanks::Add(const Letters& letters) {
    for (const uint letter : letters) {
        if (letter >= ranks_.size())
            ranks_.resize(letter + 1);
        ranks_[letter] = 1;
    }
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
}

/// Three bytes for each rank, the high one first: keys compare byte by byte as the ranks do.
std::string LetterRanks::KeyOf(const Letters& letters) const {
    std::string key;
    key.reserve(static_cast<size_t>(letters.size()) * 3);
    for (const uint letter : letters)
        for (const int shift : {16, 8, 0})
            key += static_cast<char>(ranks_[letter] >> shift);
    return key;
}

struct Keyed {
    std::string order;
    NamedKey name;
};
} // namespace

void NameOrder::Sort(QList<NamedKey>& keys) {
    LetterRanks ranks;
    std::vector<Letters> letters;
    for (const NamedKey& key : std::as_const(keys))
        ranks.Add(letters.emplace_back(LettersOf(key.name)));
    ranks.Settle();
    std::vector<Keyed> sorted;
    for (auto name = letters.cbegin(); NamedKey & key : keys)
        sorted.push_back({ranks.KeyOf(*name++), std::move(key)});
    std::ranges::stable_sort(sorted, {}, &Keyed::order);
    std::ranges::transform(sorted, keys.begin(),
                           [](Keyed& entry) { return std::move(entry.name); });
}
