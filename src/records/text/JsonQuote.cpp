#include "records/text/JsonQuote.h"

#include <algorithm>

namespace {
bool NeedsEscape(char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '"' || character == '\\';
}

void AppendEscaped(std::string& json, char character) {
    static constexpr char hex[] = "0123456789abcdef";
    if (character == '"' || character == '\\')
        json += {'\\', character};
    else if (character == '\n')
        json += "\\n";
    else
        json += {'\\', 'u', '0', '0', hex[character >> 4], hex[character & 0xF]};
}
} // namespace

void AppendJsonQuoted(std::string& json, std::string_view text) {
    json += '"';
    while (!text.empty()) {
        const auto end = std::ranges::find_if(text, NeedsEscape);
        json.append(text.begin(), end);
        if (end != text.end())
            AppendEscaped(json, *end);
        text.remove_prefix(std::min(text.size(), size_t(end - text.begin()) + 1));
    }
    json += '"';
}
