#include "exchange/Visitor.h"

#include "exchange/Text.h"

#include <algorithm>
#include <arpa/inet.h>

namespace exchange {
namespace {
std::string Household(const std::string& address) {
    in6_addr parts{};
    if (inet_pton(AF_INET6, address.c_str(), &parts) != 1)
        return address;
    std::fill(parts.s6_addr + 8, parts.s6_addr + 16, std::uint8_t{0});
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop(AF_INET6, &parts, text, sizeof text);
    return text;
}

bool IsAddress(const std::string& text) {
    in6_addr parts{};
    return inet_pton(AF_INET, text.c_str(), &parts) == 1 ||
           inet_pton(AF_INET6, text.c_str(), &parts) == 1;
}
} // namespace

/// The last entry is the one that the proxy itself has written; what stands before it is hearsay.
std::string VisitorOf(const httplib::Request& request, const Config& config) {
    const auto& proxies = config.trusted_proxies;
    if (std::find(proxies.begin(), proxies.end(), request.remote_addr) == proxies.end())
        return Household(request.remote_addr);
    const auto count = request.get_header_value_count("X-Forwarded-For");
    const auto names =
        SplitWords(count > 0 ? request.get_header_value("X-Forwarded-For", count - 1) : "", ", ");
    return Household(!names.empty() && IsAddress(names.back()) ? names.back()
                                                               : request.remote_addr);
}

} // namespace exchange
