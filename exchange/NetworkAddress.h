#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// A host's number on the network. IPv4 is held as the part of IPv6 that maps it.
class NetworkAddress {
public:
    /// Nothing if the text is no address.
    static std::optional<NetworkAddress> Read(std::string_view text);
    /// As proxies write it: perhaps in brackets, perhaps with a port.
    static std::optional<NetworkAddress> ReadForwarded(std::string_view text);

    bool IsV4() const;
    std::string Written() const; ///< the one way to write it
    NetworkAddress Prefix(int bits) const;
    bool operator==(const NetworkAddress&) const = default;

    /// The networks that a client is counted under, narrowest first: of IPv6 the /64 of a household
    /// and the /56, /48 and /32 around it, of IPv4 the address and the /24 and /16 around it.
    std::vector<std::string> Networks() const;

private:
    std::array<unsigned char, 16> bytes_{};
};

/// All addresses that begin alike: `10.0.0.0/8`, `2001:db8::/32`, or a single one.
class Network {
public:
    static std::optional<Network> Read(std::string_view text);
    bool Has(const NetworkAddress& address) const { return address.Prefix(bits_) == first_; }

private:
    NetworkAddress first_;
    int bits_ = 128;
};

} // namespace exchange
