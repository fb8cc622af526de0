#include "exchange/StoredText.h"

namespace exchange::StoredText {
namespace {
constexpr char Escape = '\x01';
constexpr char Null = '0';
constexpr char Itself = '1';
} // namespace

std::string Of(std::string_view text) {
    std::string stored;
    stored.reserve(text.size());
    for (const char c : text)
        if (c == '\0' || c == Escape)
            stored.append({Escape, c == '\0' ? Null : Itself});
        else
            stored += c;
    return stored;
}

std::string Read(std::string_view stored) {
    std::string text;
    text.reserve(stored.size());
    for (size_t i = 0; i < stored.size(); ++i)
        if (stored[i] == Escape && i + 1 < stored.size())
            text += stored[++i] == Null ? '\0' : Escape;
        else
            text += stored[i];
    return text;
}

} // namespace exchange::StoredText
