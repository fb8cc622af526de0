#include "store/TextCompare.h"

#include "store/LikePattern.h"

#include <QChar>

namespace {
constexpr char32_t Replacement = 0xFFFD;

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The number of bytes that follow a lead byte; -1 for a byte that starts no character.
int FollowingBytes(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF)
        return 1;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 2;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 3;
    return -1;
}

/// A character in more bytes than it needs is not UTF-8.
bool IsShortest(char32_t character, int following) {
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    return character >= smallest[following];
}

char32_t TakeMultibyte(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const int following = FollowingBytes(lead);
    text.remove_prefix(1);
    if (following < 0 || text.size() < static_cast<size_t>(following))
        return Replacement;
    char32_t character = lead & (0x3FU >> following);
    for (int i = 0; i < following; ++i) {
        const char byte = text[static_cast<size_t>(i)];
        if (!IsContinuation(byte))
            return Replacement;
        character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    if (!IsShortest(character, following))
        return Replacement;
    text.remove_prefix(static_cast<size_t>(following));
    return character;
}

int Sign(char32_t left, char32_t right) {
    return left < right ? -1 : 1;
}
} // namespace

char32_t TextCompare::TakeFolded(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80) {
        text.remove_prefix(1);
        return lead >= 'A' && lead <= 'Z' ? lead + 32U : lead;
    }
    return QChar::toCaseFolded(TakeMultibyte(text));
}

int TextCompare::Compare(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        const char32_t a = TakeFolded(left);
        const char32_t b = TakeFolded(right);
        if (a != b)
            return Sign(a, b);
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

bool TextCompare::Like(std::string_view pattern, std::string_view text) {
    return LikePattern(pattern).Matches(text);
}
