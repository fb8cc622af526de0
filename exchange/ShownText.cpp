#include "exchange/ShownText.h"

#include "exchange/Text.h"

#include <algorithm>

namespace exchange::ShownText {
namespace {
enum class Kind { Seen, Blank, LineEnd, Joiner, Hidden };

struct Range {
    char32_t first;
    char32_t last;
    Kind kind;
};

/// Letters that are not simply visible, in order. A joiner changes how its neighbours look.
constexpr Range Ranges[] = {
    {0x0000, 0x0008, Kind::Hidden},   {0x0009, 0x0009, Kind::Blank},
    {0x000a, 0x000d, Kind::LineEnd},  {0x000e, 0x001f, Kind::Hidden},
    {0x0020, 0x0020, Kind::Blank},    {0x007f, 0x0084, Kind::Hidden},
    {0x0085, 0x0085, Kind::LineEnd},  {0x0086, 0x009f, Kind::Hidden},
    {0x00a0, 0x00a0, Kind::Blank},    {0x00ad, 0x00ad, Kind::Hidden},
    {0x034f, 0x034f, Kind::Hidden},   {0x061c, 0x061c, Kind::Hidden},
    {0x115f, 0x1160, Kind::Hidden},   {0x1680, 0x1680, Kind::Blank},
    {0x17b4, 0x17b5, Kind::Hidden},   {0x180b, 0x180f, Kind::Hidden},
    {0x2000, 0x200a, Kind::Blank},    {0x200b, 0x200b, Kind::Hidden},
    {0x200c, 0x200d, Kind::Joiner},   {0x200e, 0x200f, Kind::Hidden},
    {0x2028, 0x2029, Kind::LineEnd},  {0x202a, 0x202e, Kind::Hidden},
    {0x202f, 0x202f, Kind::Blank},    {0x205f, 0x205f, Kind::Blank},
    {0x2060, 0x206f, Kind::Hidden},   {0x2800, 0x2800, Kind::Blank},
    {0x3000, 0x3000, Kind::Blank},    {0x3164, 0x3164, Kind::Hidden},
    {0xfdd0, 0xfdef, Kind::Hidden},   {0xfe00, 0xfe0f, Kind::Joiner},
    {0xfeff, 0xfeff, Kind::Hidden},   {0xffa0, 0xffa0, Kind::Hidden},
    {0xfff0, 0xfffc, Kind::Hidden},   {0x1bca0, 0x1bca3, Kind::Hidden},
    {0x1d173, 0x1d17a, Kind::Hidden}, {0xe0000, 0xe0fff, Kind::Hidden},
};

Kind KindOf(char32_t letter) {
    if (letter > ' ' && letter < 0x7f)
        return Kind::Seen;
    if ((letter & 0xfffe) == 0xfffe)
        return Kind::Hidden;
    const auto* range = std::lower_bound(
        std::begin(Ranges), std::end(Ranges), letter,
        [](const Range& candidate, char32_t value) { return candidate.last < value; });
    return range != std::end(Ranges) && letter >= range->first ? range->kind : Kind::Seen;
}

/// Calls back with each letter's bytes and kind. What is not UTF-8 ends the text.
template <class Take> void EachLetter(std::string_view text, const Take& take) {
    for (auto letter = FirstLetter(text); letter; letter = FirstLetter(text)) {
        if (!take(text.substr(0, letter->size), KindOf(letter->code)))
            return;
        text.remove_prefix(letter->size);
    }
}
} // namespace

std::string Line(std::string_view text, size_t most) {
    std::string line;
    size_t letters = 0;
    bool blank = false;
    EachLetter(text, [&](std::string_view bytes, Kind kind) {
        const bool between = kind == Kind::Blank || kind == Kind::LineEnd;
        blank = blank || (between && !line.empty());
        if (between || kind == Kind::Hidden)
            return true;
        if (letters + (blank ? 1 : 0) >= most) {
            line += "…";
            return false;
        }
        letters += blank ? 2 : 1;
        line.append(blank ? " " : "").append(bytes);
        blank = false;
        return true;
    });
    return line;
}

std::string Name(std::string_view text, size_t most) {
    bool seen = false;
    EachLetter(text, [&](std::string_view, Kind kind) {
        seen = kind == Kind::Seen;
        return !seen;
    });
    return seen ? Line(text, most) : "(no name)";
}

std::string Lines(std::string_view text) {
    std::string lines;
    bool afterReturn = false;
    EachLetter(text, [&](std::string_view bytes, Kind kind) {
        const bool secondHalf = afterReturn && bytes == "\n";
        afterReturn = bytes == "\r";
        if (kind == Kind::LineEnd && !secondHalf)
            lines += '\n';
        else if (kind != Kind::LineEnd && kind != Kind::Hidden)
            lines += bytes;
        return true;
    });
    return lines;
}

} // namespace exchange::ShownText
