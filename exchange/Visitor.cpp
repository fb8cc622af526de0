#include "exchange/Visitor.h"

#include "exchange/NetworkAddress.h"
#include "exchange/Text.h"

#include <algorithm>

namespace exchange {

/// The last entry is the one that the proxy itself has written; what stands before it is hearsay.
std::string VisitorOf(const httplib::Request& request, const Config& config) {
    const auto& proxies = config.trusted_proxies;
    if (std::find(proxies.begin(), proxies.end(), request.remote_addr) == proxies.end())
        return NetworkAddress::Household(request.remote_addr);
    const auto count = request.get_header_value_count("X-Forwarded-For");
    const auto names =
        SplitWords(count > 0 ? request.get_header_value("X-Forwarded-For", count - 1) : "", ", ");
    const auto client = names.empty() ? std::nullopt : NetworkAddress::Canonical(names.back());
    return NetworkAddress::Household(client.value_or(request.remote_addr));
}

} // namespace exchange
