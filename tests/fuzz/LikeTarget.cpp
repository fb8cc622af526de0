#include "fuzz/Target.h"

#include "store/LikePattern.h"
#include "store/TextCompare.h"

#include <vector>

namespace {
using Characters = std::vector<char32_t>;

Characters Folded(std::string_view text) {
    Characters characters;
    while (!text.empty())
        characters.push_back(TextCompare::TakeFolded(text));
    return characters;
}

/// LIKE as it is defined, character by character of the pattern: which places of the text can be
/// reached.
bool Matches(const Characters& pattern, const Characters& text) {
    std::vector<bool> reached(text.size() + 1);
    reached[0] = true;
    for (const char32_t mark : pattern) {
        std::vector<bool> next(text.size() + 1);
        for (size_t at = 0; at <= text.size(); ++at)
            if (mark == U'%')
                next[at] = reached[at] || (at > 0 && next[at - 1]);
            else
                next[at] = at > 0 && reached[at - 1] && (mark == U'_' || mark == text[at - 1]);
        reached = next;
    }
    return reached.back();
}
} // namespace

/// The quick search agrees with the definition, and the order of texts is one.
void Fuzz(const std::string& bytes) {
    const size_t end = bytes.find('\x1e');
    const std::string pattern = bytes.substr(0, end);
    const std::string text = end == std::string::npos ? bytes : bytes.substr(end + 1);
    Expect(LikePattern(pattern).Matches(text) == Matches(Folded(pattern), Folded(text)));
    Expect(TextCompare::Compare(pattern, text) == -TextCompare::Compare(text, pattern));
    Expect((TextCompare::Compare(pattern, text) == 0) == (Folded(pattern) == Folded(text)));
}
