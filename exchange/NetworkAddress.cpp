#include "exchange/NetworkAddress.h"

#include <algorithm>
#include <arpa/inet.h>

namespace exchange::NetworkAddress {
namespace {
std::string Written(int family, const void* address) {
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop(family, address, text, sizeof text);
    return text;
}
} // namespace

std::optional<std::string> Canonical(const std::string& text) {
    in6_addr address{};
    if (inet_pton(AF_INET, text.c_str(), &address) == 1)
        return Written(AF_INET, &address);
    if (inet_pton(AF_INET6, text.c_str(), &address) != 1)
        return {};
    if (IN6_IS_ADDR_V4MAPPED(&address))
        return Written(AF_INET, address.s6_addr + 12);
    return Written(AF_INET6, &address);
}

std::string Household(const std::string& address) {
    in6_addr parts{};
    if (inet_pton(AF_INET6, address.c_str(), &parts) != 1)
        return address;
    std::fill(parts.s6_addr + 8, parts.s6_addr + 16, std::uint8_t{0});
    return Written(AF_INET6, &parts);
}

} // namespace exchange::NetworkAddress
