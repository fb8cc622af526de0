#include "exchange/Text.h"

#include <algorithm>
#include <charconv>

namespace exchange {

std::string Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return std::string(text.substr(begin, text.find_last_not_of(blanks) - begin + 1));
}

std::string Upper(std::string_view text) {
    std::string upper(text);
    for (auto& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::string Lower(std::string_view text) {
    std::string lower(text);
    for (auto& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string Join(const std::vector<std::string>& parts, std::string_view between) {
    std::string joined;
    for (const auto& part : parts)
        joined.append(joined.empty() ? std::string_view() : between).append(part);
    return joined;
}

std::vector<std::string> SplitWords(std::string_view text, std::string_view separators) {
    std::vector<std::string> words;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of(separators), text.size());
        if (end > 0)
            words.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

std::optional<int> WholeNumber(std::string_view text, int least, int most) {
    int number = 0;
    const auto* end = text.data() + text.size();
    if (text.empty() || text.front() < '0' || text.front() > '9')
        return {};
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || number < least || number > most)
        return {};
    return number;
}

namespace {
/// The size of a non-ASCII letter that begins with this byte; 0 if none does.
size_t LengthOf(unsigned lead) {
    if (lead >> 5 == 0b110)
        return 2;
    if (lead >> 4 == 0b1110)
        return 3;
    return lead >> 3 == 0b11110 ? 4 : 0;
}

std::optional<char32_t> CodeOf(std::string_view bytes) {
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    char32_t code = static_cast<unsigned char>(bytes[0]) & (0x7fU >> bytes.size());
    for (const char c : bytes.substr(1)) {
        const unsigned next = static_cast<unsigned char>(c);
        if (next >> 6 != 0b10)
            return {};
        code = code << 6 | (next & 0x3fU);
    }
    const bool surrogate = code >> 11 == 0x1b;
    if (code < least[bytes.size()] || code > 0x10ffff || surrogate)
        return {};
    return code;
}
} // namespace

std::optional<Letter> FirstLetter(std::string_view text) {
    const auto lead = text.empty() ? 0xffU : static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return Letter{lead, 1};
    const auto size = LengthOf(lead);
    if (size == 0 || size > text.size())
        return {};
    const auto code = CodeOf(text.substr(0, size));
    return code ? std::optional<Letter>({*code, size}) : std::nullopt;
}

bool IsUtf8(std::string_view text) {
    for (auto letter = FirstLetter(text); letter; letter = FirstLetter(text))
        text.remove_prefix(letter->size);
    return text.empty();
}

bool IsPlain(std::string_view text, std::string_view allowed) {
    return std::none_of(text.begin(), text.end(), [&](char c) {
        const auto code = static_cast<unsigned char>(c);
        return (code < 0x20 || code == 0x7f) && allowed.find(c) == std::string_view::npos;
    });
}

} // namespace exchange
