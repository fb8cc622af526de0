#include "exchange/Target.h"

#include "exchange/Http.h"

#include <algorithm>
#include <charconv>

namespace exchange::Target {
namespace {
constexpr std::string_view Digits = "0123456789ABCDEF";

/// The byte of `%` and two digits at the beginning of the text; -1 if there are none.
int EncodedByte(std::string_view text) {
    int byte = 0;
    if (text.size() < 3 || text[0] != '%')
        return -1;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + 3, byte, 16);
    return error == std::errc{} && end == text.data() + 3 && text[1] != '-' ? byte : -1;
}

bool IsPlainInQuery(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~").find(c) != std::string_view::npos;
}

std::string DecodedValue(std::string_view text) {
    std::string value(text);
    std::replace(value.begin(), value.end(), '+', ' ');
    return Decoded(value);
}

} // namespace

void ReadParams(std::string_view text, Request& request) {
    while (!text.empty()) {
        const auto part = text.substr(0, text.find('&'));
        text.remove_prefix(std::min(text.size(), part.size() + 1));
        const auto equals = std::min(part.find('='), part.size());
        const auto value = part.substr(std::min(part.size(), equals + 1));
        if (!part.empty())
            request.params.emplace_back(DecodedValue(part.substr(0, equals)), DecodedValue(value));
    }
}

std::string Decoded(std::string_view text) {
    std::string decoded;
    decoded.reserve(text.size());
    while (!text.empty()) {
        const int byte = EncodedByte(text);
        decoded += byte < 0 ? text[0] : static_cast<char>(byte);
        text.remove_prefix(byte < 0 ? 1 : 3);
    }
    return decoded;
}

std::string Encoded(std::string_view text) {
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsPlainInQuery(c))
            encoded += c;
        else
            encoded.append({'%', Digits[byte >> 4], Digits[byte & 15]});
    }
    return encoded;
}

bool Read(std::string_view target, Request& request) {
    if (!target.starts_with('/'))
        return false;
    target = target.substr(0, target.find('#'));
    const auto question = std::min(target.find('?'), target.size());
    request.path = Decoded(target.substr(0, question));
    ReadParams(target.substr(std::min(target.size(), question + 1)), request);
    return true;
}

} // namespace exchange::Target
