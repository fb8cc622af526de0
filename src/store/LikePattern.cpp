#include "store/LikePattern.h"

#include "store/TextCompare.h"

#include <algorithm>

namespace {
// Behind the last character of Unicode, so that no text can hold them.
constexpr char32_t AnyRun = 0x110000;
constexpr char32_t AnyOne = 0x110001;

constexpr std::array<unsigned char, 256> FoldTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i)
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 32 : i);
    return table;
}
constexpr auto Folded = FoldTable();

unsigned char Fold(char byte) {
    return Folded[static_cast<unsigned char>(byte)];
}

char32_t TakeOfPattern(std::string_view& pattern) {
    const char first = pattern.front();
    const char32_t character = TextCompare::TakeFolded(pattern);
    return first == '%' ? AnyRun : first == '_' ? AnyOne : character;
}

bool IsPlain(char32_t character) {
    return character < 0x80;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// The case-folded text, in a buffer that is used again by the next call.
std::u32string_view FoldedText(std::string_view text) {
    thread_local std::u32string buffer;
    buffer.clear();
    while (!text.empty())
        buffer.push_back(TextCompare::TakeFolded(text));
    return buffer;
}
} // namespace

LikePattern::LikePattern(std::string_view pattern) {
    while (!pattern.empty())
        folded_.push_back(TakeOfPattern(pattern));
    PrepareWord();
}

void LikePattern::PrepareWord() {
    if (folded_.size() < 3 || folded_.front() != AnyRun || folded_.back() != AnyRun)
        return;
    const auto inner = std::u32string_view(folded_).substr(1, folded_.size() - 2);
    if (!std::all_of(inner.begin(), inner.end(), IsPlain))
        return;
    word_.assign(inner.begin(), inner.end());
    const size_t last = word_.size() - 1;
    skip_.fill(static_cast<std::uint8_t>(std::min<size_t>(word_.size(), 255)));
    for (size_t i = 0; i < last; ++i) {
        const auto step = static_cast<std::uint8_t>(std::min<size_t>(last - i, 255));
        const auto letter = static_cast<unsigned char>(word_[i]);
        skip_[letter] = step;
        skip_[letter >= 'a' && letter <= 'z' ? letter - 32U : letter] = step;
    }
}

bool LikePattern::Matches(std::string_view text) const {
    if (word_.empty())
        return MatchesFolded(FoldedText(text));
    // A few letters beyond ASCII fold to one within, so that a text with any is looked at in full.
    return FindWord(text) || (!IsAscii(text) && MatchesFolded(FoldedText(text)));
}

bool LikePattern::FindWord(std::string_view text) const {
    const size_t length = word_.size();
    const auto tail = static_cast<unsigned char>(word_.back());
    for (size_t end = length; end <= text.size();) {
        const char at = text[end - 1];
        if (Fold(at) == tail &&
            std::equal(word_.begin(), word_.end(), text.begin() + static_cast<long>(end - length),
                       [](char a, char b) { return static_cast<unsigned char>(a) == Fold(b); }))
            return true;
        end += skip_[static_cast<unsigned char>(at)];
    }
    return false;
}

bool LikePattern::MatchesFolded(std::u32string_view text) const {
    size_t at = 0;
    size_t mark = 0;
    size_t runInPattern = std::u32string::npos; // the last `%` met, and what it covers up to
    size_t runInText = 0;
    while (at < text.size()) {
        if (mark < folded_.size() && folded_[mark] == AnyRun) {
            runInPattern = mark++;
            runInText = at;
        } else if (mark < folded_.size() &&
                   (folded_[mark] == AnyOne || folded_[mark] == text[at])) {
            ++mark;
            ++at;
        } else if (runInPattern != std::u32string::npos) {
            mark = runInPattern + 1;
            at = ++runInText;
        } else {
            return false;
        }
    }
    return folded_.find_first_not_of(AnyRun, mark) == std::u32string::npos;
}
