#include "exchange/Visitor.h"

#include "exchange/Http.h"
#include "exchange/NetworkAddress.h"
#include "exchange/Text.h"

#include <algorithm>

namespace exchange {

/// The last entry is the one that the proxy itself has written; what stands before it is hearsay.
Visitor VisitorOf(const Request& request, const Config& config) {
    const auto& proxies = config.trusted_proxies;
    if (std::find(proxies.begin(), proxies.end(), request.peer) == proxies.end())
        return {{NetworkAddress::Household(request.peer)}};
    const auto names = SplitWords(request.Header("x-forwarded-for"), ", ");
    const auto client = names.empty() ? std::nullopt : NetworkAddress::Canonical(names.back());
    return {{NetworkAddress::Household(client.value_or(request.peer))}};
}

} // namespace exchange
