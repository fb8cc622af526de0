#include "exchange/Shares.h"

namespace exchange {

void Shares::Add(const Visitor& holder, long long amount) {
    const auto& networks = holder.networks;
    sum_ += amount;
    for (size_t i = 0; i < networks.size(); ++i) {
        auto& share = shares_[networks[i]];
        share.amount += amount;
        if (share.amount == 0)
            shares_.erase(networks[i]);
        else if (i + 1 < networks.size())
            share.within = networks[i + 1];
    }
}

long long Shares::Of(const std::string& network) const {
    const auto found = shares_.find(network);
    return found == shares_.end() ? 0 : found->second.amount;
}

std::string Shares::GreatestWithin(const std::string& network) const {
    std::string greatest;
    long long most = 0;
    for (const auto& [name, share] : shares_)
        if (share.within == network && share.amount > most) {
            most = share.amount;
            greatest = name;
        }
    return greatest;
}

std::string Shares::Greatest() const {
    std::string greatest;
    for (auto next = GreatestWithin({}); !next.empty(); next = GreatestWithin(next))
        greatest = next;
    return greatest;
}

} // namespace exchange
