#pragma once

#include "exchange/Config.h"
#include "exchange/NetworkAddress.h"

#include <string>
#include <string_view>
#include <vector>

namespace exchange {

struct Request;

/// Who is counted for a request: the networks that its client is in, narrowest first. They are
/// named by keyed digests only, so that whoever sees a name learns nothing of the address.
struct Visitor {
    std::vector<std::string> networks;
};

/// Tells who a request comes from. Thread-safe.
class Visitors {
public:
    Visitors(const Config& config, std::string secret);

    bool IsProxy(std::string_view peer) const;
    Visitor At(std::string_view address) const;
    /// What the trusted proxy at the other end says of its client.
    Visitor Behind(const Request& request) const;

private:
    std::vector<Network> proxies_;
    std::string secret_;
};

} // namespace exchange
