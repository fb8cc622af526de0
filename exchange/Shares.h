#pragma once

#include "exchange/Visitor.h"

#include <map>
#include <string>

namespace exchange {

/// How much of a scarce resource each network holds, for networks of every width.
class Shares {
public:
    void Add(const Visitor& holder, long long amount); ///< a negative amount is given back
    long long Of(const std::string& network) const;
    long long Sum() const { return sum_; }

    /// The narrowest network within the one that holds most; empty if nobody holds anything. We
    /// begin with the widest, so that many small networks of one owner count as one.
    std::string Greatest() const;

private:
    struct Share {
        long long amount = 0;
        std::string within; ///< the next wider network; empty for the widest
    };
    std::string GreatestWithin(const std::string& network) const;

    std::map<std::string, Share> shares_;
    long long sum_ = 0;
};

} // namespace exchange
