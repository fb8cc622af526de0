#include "exchange/MailAddress.h"

#include "exchange/Text.h"

#include <algorithm>

namespace exchange {
namespace {
bool IsAlphanumeric(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool IsAtom(std::string_view text) {
    constexpr std::string_view marks = "&'+-=_~";
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

/// A name below a top-level domain, and not the number of a host.
bool EndsInLetters(std::string_view domain) {
    const auto dot = domain.rfind('.');
    return dot != std::string_view::npos && dot + 1 < domain.size() &&
           !(domain[dot + 1] >= '0' && domain[dot + 1] <= '9');
}

/// Hosts where several names lead to one mailbox. Domains with the same mailbox domain are one
/// host.
struct Host {
    std::string_view domain;
    std::string_view mailboxDomain;
    std::string_view ignored; ///< marks within a name that make no difference
};
constexpr Host Hosts[] = {
    {"gmail.com", "gmail.com", "."},       {"googlemail.com", "gmail.com", "."},
    {"proton.me", "proton.me", "._-"},     {"protonmail.com", "proton.me", "._-"},
    {"protonmail.ch", "proton.me", "._-"}, {"pm.me", "proton.me", "._-"},
};

Host HostOf(std::string_view domain) {
    for (const auto& host : Hosts)
        if (host.domain == domain)
            return host;
    return {domain, domain, ""};
}
} // namespace

bool IsMailAddress(std::string_view text) {
    const auto at = text.find('@');
    if (at == std::string_view::npos || text.size() > 254)
        return false;
    const auto name = text.substr(0, at);
    const auto domain = text.substr(at + 1);
    return name.size() <= 64 && !name.starts_with('-') && EachPart(name, IsAtom) &&
           EachPart(domain, IsLabel) && EndsInLetters(domain);
}

std::string MailboxOf(std::string_view address) {
    const auto lower = Lower(address);
    const auto at = std::min(lower.rfind('@'), lower.size());
    const auto host = HostOf(std::string_view(lower).substr(std::min(at + 1, lower.size())));
    auto name = lower.substr(0, std::min(lower.find('+', 1), at));
    std::erase_if(name, [&](char c) { return host.ignored.find(c) != std::string_view::npos; });
    return name + "@" + std::string(host.mailboxDomain);
}

} // namespace exchange
