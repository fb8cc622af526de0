#include "exchange/MailAddress.h"

#include <algorithm>

namespace exchange {
namespace {
bool IsAlphanumeric(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool IsAtom(std::string_view text) {
    constexpr std::string_view marks = "!#$%&'*+-/=?^_`{|}~";
    return !text.empty() && std::all_of(text.begin(), text.end(), [&](char c) {
        return IsAlphanumeric(c) || marks.find(c) != std::string_view::npos;
    });
}

bool IsLabel(std::string_view text) {
    return !text.empty() && text.size() <= 63 && text.front() != '-' && text.back() != '-' &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return IsAlphanumeric(c) || c == '-'; });
}

/// Whether each of the parts between the dots passes.
bool EachPart(std::string_view text, bool (*passes)(std::string_view)) {
    for (auto dot = text.find('.'); dot != std::string_view::npos; dot = text.find('.')) {
        if (!passes(text.substr(0, dot)))
            return false;
        text.remove_prefix(dot + 1);
    }
    return passes(text);
}
} // namespace

bool IsMailAddress(std::string_view text) {
    const auto at = text.find('@');
    if (at == std::string_view::npos || text.size() > 254)
        return false;
    const auto name = text.substr(0, at);
    const auto domain = text.substr(at + 1);
    return name.size() <= 64 && EachPart(name, IsAtom) &&
           domain.find('.') != std::string_view::npos && EachPart(domain, IsLabel);
}

} // namespace exchange
