#include "exchange/NetworkAddress.h"

#include "exchange/Text.h"

#include <algorithm>
#include <arpa/inet.h>
#include <span>

namespace exchange {
namespace {
constexpr int V4Begin = 96;
constexpr std::array<unsigned char, 12> V4Prefix = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff};
constexpr int V4Widths[] = {32, 24, 16};
constexpr int V6Widths[] = {64, 56, 48, 32};

/// The part in brackets, or an IPv4 address before its port; any other text as it is.
std::string_view WithoutPort(std::string_view text) {
    if (text.starts_with('['))
        return text.substr(1, text.find(']') - 1);
    return std::count(text.begin(), text.end(), ':') == 1 ? text.substr(0, text.find(':')) : text;
}
} // namespace

std::optional<NetworkAddress> NetworkAddress::Read(std::string_view text) {
    NetworkAddress address;
    const std::string name(text);
    std::copy(V4Prefix.begin(), V4Prefix.end(), address.bytes_.begin());
    if (inet_pton(AF_INET, name.c_str(), address.bytes_.data() + V4Prefix.size()) == 1 ||
        inet_pton(AF_INET6, name.c_str(), address.bytes_.data()) == 1)
        return name.find('\0') == std::string::npos ? std::optional(address) : std::nullopt;
    return {};
}

std::optional<NetworkAddress> NetworkAddress::ReadForwarded(std::string_view text) {
    return Read(WithoutPort(text));
}

bool NetworkAddress::IsV4() const {
    return std::equal(V4Prefix.begin(), V4Prefix.end(), bytes_.begin());
}

std::string NetworkAddress::Written() const {
    char text[INET6_ADDRSTRLEN] = "";
    if (IsV4())
        inet_ntop(AF_INET, bytes_.data() + V4Prefix.size(), text, sizeof text);
    else
        inet_ntop(AF_INET6, bytes_.data(), text, sizeof text);
    return text;
}

NetworkAddress NetworkAddress::Prefix(int bits) const {
    auto prefix = *this;
    for (int i = 0; i < 16; ++i) {
        const int kept = std::clamp(bits - 8 * i, 0, 8);
        prefix.bytes_[static_cast<size_t>(i)] &= static_cast<unsigned char>(0xff00 >> kept);
    }
    return prefix;
}

std::vector<std::string> NetworkAddress::Networks() const {
    const auto widths = IsV4() ? std::span<const int>(V4Widths) : std::span<const int>(V6Widths);
    std::vector<std::string> networks;
    for (const int width : widths)
        networks.push_back(Prefix(IsV4() ? V4Begin + width : width).Written() + "/" +
                           std::to_string(width));
    return networks;
}

std::optional<Network> Network::Read(std::string_view text) {
    Network network;
    const auto slash = std::min(text.find('/'), text.size());
    const auto address = NetworkAddress::Read(text.substr(0, slash));
    if (!address)
        return {};
    if (slash < text.size()) {
        const int begin = address->IsV4() ? V4Begin : 0;
        const auto width = WholeNumber(text.substr(slash + 1), 0, 128 - begin);
        if (!width)
            return {};
        network.bits_ = begin + *width;
    }
    network.first_ = address->Prefix(network.bits_);
    return network;
}

} // namespace exchange
