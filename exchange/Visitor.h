#pragma once

#include "exchange/Config.h"
#include "exchange/NetworkAddress.h"

#include <string>
#include <string_view>
#include <vector>

namespace exchange {

struct Request;

/// Whose limits count for a request: the networks of its client, narrowest first. Their names are
/// keyed digests, which do not reveal the address.
struct Visitor {
    std::vector<std::string> networks;
};

/// Tells who a request comes from. Thread-safe.
class Visitors {
public:
    Visitors(const Config& config, std::string secret);

    bool IsProxy(std::string_view peer) const;
    Visitor At(std::string_view address) const;
    /// The client that the trusted proxy at the other end names.
    Visitor Behind(const Request& request) const;

private:
    std::vector<Network> proxies_;
    std::string secret_;
};

} // namespace exchange
