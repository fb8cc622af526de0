#include "store/LikePattern.h"

#include "store/TextCompare.h"

#include <algorithm>
#include <cstring>

namespace {
// Above the last Unicode character: no text can hold them.
constexpr char32_t AnyRun = 0x110000;
constexpr char32_t AnyOne = 0x110001;

/// The characters of names, the most frequent first. Any other is rarer.
constexpr std::string_view ByFrequency = "e anortiscldhupwm,fkgbyv";

char Fold(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

char Upper(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 32) : byte;
}

char32_t TakeOfPattern(std::string_view& pattern) {
    const char first = pattern.front();
    const char32_t character = TextCompare::TakeFolded(pattern);
    return first == '%' ? AnyRun : first == '_' ? AnyOne : character;
}

bool IsPlain(char32_t character) {
    return character < 0x80;
}

/// The case-folded text, in a buffer that the next call reuses.
std::u32string_view FoldedText(std::string_view text) {
    thread_local std::u32string buffer;
    buffer.clear();
    while (!text.empty())
        buffer.push_back(TextCompare::TakeFolded(text));
    return buffer;
}

size_t RarestPlace(std::string_view word) {
    const auto rarer = [](char a, char b) { return ByFrequency.find(a) < ByFrequency.find(b); };
    return static_cast<size_t>(std::max_element(word.begin(), word.end(), rarer) - word.begin());
}
} // namespace

LikePattern::LikePattern(std::string_view pattern) {
    while (!pattern.empty()) {
        const char32_t next = TakeOfPattern(pattern);
        if (next != AnyRun || folded_.empty() || folded_.back() != AnyRun)
            folded_.push_back(next);
    }
    TakeWord();
}

void LikePattern::TakeWord() {
    for (auto at = folded_.begin(); at != folded_.end();) {
        const auto first = std::find_if(at, folded_.end(), IsPlain);
        at = std::find_if_not(first, folded_.end(), IsPlain);
        if (static_cast<size_t>(at - first) > word_.size())
            word_.assign(first, at);
    }
    anchor_ = RarestPlace(word_);
    wordAlone_ =
        folded_.size() == word_.size() + 2 && folded_.front() == AnyRun && folded_.back() == AnyRun;
    foldsToWord_ = word_.find_first_of("ks") != std::string::npos;
}

bool LikePattern::Matches(std::string_view text) const {
    if (folded_.size() == 1 && folded_.front() == AnyRun)
        return true;
    const bool found = FindWord(text);
    if (found && wordAlone_)
        return true;
    return (found || MayFoldToWord(text)) && MatchesFolded(FoldedText(text));
}

bool LikePattern::FindWord(std::string_view text) const {
    if (word_.empty())
        return true;
    const char anchor = word_[anchor_];
    return FindWordAt(text, anchor) || (Upper(anchor) != anchor && FindWordAt(text, Upper(anchor)));
}

bool LikePattern::FindWordAt(std::string_view text, char anchor) const {
    const size_t behind = word_.size() - anchor_; // from the anchor to the end of the word
    for (size_t at = text.find(anchor, anchor_); at != std::string_view::npos;
         at = text.find(anchor, at + 1)) {
        if (text.size() - at < behind)
            return false;
        const std::string_view candidate = text.substr(at - anchor_, word_.size());
        if (std::equal(word_.begin(), word_.end(), candidate.begin(),
                       [](char letter, char byte) { return letter == Fold(byte); }))
            return true;
    }
    return false;
}

/// Outside ASCII only the long s and the kelvin sign fold into ASCII. These are their first bytes.
bool LikePattern::MayFoldToWord(std::string_view text) const {
    return foldsToWord_ && (text.find('\xC5') != std::string_view::npos ||
                            text.find('\xE2') != std::string_view::npos);
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
