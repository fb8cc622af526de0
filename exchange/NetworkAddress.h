#pragma once

#include <optional>
#include <string>

namespace exchange {

/// Hosts on the network, named by their numbers.
namespace NetworkAddress {
/// The one way to write an address; nothing if the text is none. IPv4 within IPv6 is IPv4.
std::optional<std::string> Canonical(const std::string& text);

/// What a client is counted under: an IPv4 address, or of an IPv6 one the half that a household
/// has.
std::string Household(const std::string& address);
} // namespace NetworkAddress

} // namespace exchange
