#include "exchange/Visitor.h"

#include "exchange/Http.h"
#include "exchange/Secrets.h"
#include "exchange/Text.h"

#include <algorithm>

namespace exchange {

Visitors::Visitors(const Config& config, std::string secret)
    : secret_(std::move(secret)) {
    for (const auto& proxy : config.trusted_proxies)
        proxies_.push_back(*Network::Read(proxy));
}

bool Visitors::IsProxy(std::string_view peer) const {
    const auto address = NetworkAddress::Read(peer);
    return address && std::any_of(proxies_.begin(), proxies_.end(),
                                  [&](const Network& proxy) { return proxy.Has(*address); });
}

Visitor Visitors::At(std::string_view address) const {
    Visitor visitor;
    for (const auto& network : NetworkAddress::Read(address).value_or(NetworkAddress()).Networks())
        visitor.networks.push_back(Secrets::Keyed(secret_, network));
    return visitor;
}

/// Only the last entry is written by our proxy. The client can forge the others.
Visitor Visitors::Behind(const Request& request) const {
    const auto names = SplitWords(request.Header("x-forwarded-for"), ", ");
    const auto client = names.empty() ? std::nullopt : NetworkAddress::ReadForwarded(names.back());
    return At(client ? client->Written() : request.peer);
}

} // namespace exchange
