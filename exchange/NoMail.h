#pragma once

#include "exchange/Connection.h"

#include <string>
#include <string_view>

namespace exchange {

/// The mailboxes that want no mail from this server. The database holds only their keyed digests.
/// Each mail carries a token for its mailbox; nobody can make one without the key.
class NoMail {
public:
    explicit NoMail(std::string secret)
        : secret_(std::move(secret)) {}

    std::string TokenFor(std::string_view address) const;
    /// Notes the mailbox of the token; false if the token is not ours.
    bool Note(Connection& connection, std::string_view token) const;
    bool IsToken(std::string_view token) const;
    bool Holds(Connection& connection, std::string_view address) const;

private:
    std::string DigestOf(std::string_view address) const;
    std::string SealOf(std::string_view digest) const;

    std::string secret_;
};

} // namespace exchange
