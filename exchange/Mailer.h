#pragma once

#include "exchange/Config.h"

#include <atomic>
#include <string>

namespace exchange {

/// Hands mails to the relay of the configuration.
class Mailer {
public:
    explicit Mailer(const Config& config);
    ~Mailer();
    Mailer(const Mailer&) = delete;
    Mailer& operator=(const Mailer&) = delete;

    /// `Later`: the relay could not be reached, or does not take the mail just now. `Refused`: it
    /// will never take it.
    enum class Result { Taken, Later, Refused };
    /// Breaks off once `ending` is set. Never throws.
    Result Send(const std::string& to, const std::string& mail,
                const std::atomic<bool>& ending) const;

private:
    const Config& config_;
};

} // namespace exchange
