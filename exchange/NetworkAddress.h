#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// An IP address. IPv4 is held as an IPv4-mapped IPv6 address.
class NetworkAddress {
public:
    /// Nothing if the text is not an address.
    static std::optional<NetworkAddress> Read(std::string_view text);
    /// As proxies write it: with or without brackets and port.
    static std::optional<NetworkAddress> ReadForwarded(std::string_view text);

    bool IsV4() const;
    std::string Written() const; ///< the same text for the same address
    NetworkAddress Prefix(int bits) const;
    bool operator==(const NetworkAddress&) const = default;

    /// The networks that count for a client, narrowest first: for IPv6 the /64 of a household and
    /// the /56, /48 and /32 around it, for IPv4 the address and the /24 and /16 around it.
    std::vector<std::string> Networks() const;

private:
    std::array<unsigned char, 16> bytes_{};
};

/// All addresses with a prefix: `10.0.0.0/8`, `2001:db8::/32`, or a single address.
class Network {
public:
    static std::optional<Network> Read(std::string_view text);
    bool Has(const NetworkAddress& address) const { return address.Prefix(bits_) == first_; }

private:
    NetworkAddress first_;
    int bits_ = 128;
};

} // namespace exchange
