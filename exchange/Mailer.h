#pragma once

#include "exchange/Config.h"

#include <semaphore>
#include <string>

namespace exchange {

/// Hands mails to the relay of the configuration. A few at a time: a relay that hangs leaves most
/// of the workers free.
class Mailer {
public:
    explicit Mailer(const Config& config);
    ~Mailer();
    Mailer(const Mailer&) = delete;
    Mailer& operator=(const Mailer&) = delete;

    /// True once the relay has taken the mail. Never throws.
    bool Send(const std::string& to, const std::string& mail) const;

private:
    static constexpr int AtATime = 3;
    bool Transfer(const std::string& to, const std::string& mail) const;

    const Config& config_;
    mutable std::counting_semaphore<AtATime> places_{AtATime};
};

} // namespace exchange
