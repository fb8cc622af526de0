#pragma once

#include <stdexcept>
#include <string>

namespace exchange {

/// Why a request is refused: the status of the reply, and a reason for the client. If a limit
/// refuses it, it also holds the seconds until the client may try again.
class Refusal : public std::runtime_error {
public:
    static constexpr int Minute = 60;
    static constexpr int Hour = 60 * Minute;
    static constexpr int Day = 24 * Hour;

    Refusal(int status, const std::string& reason, int retryAfter = 0)
        : std::runtime_error(reason)
        , status_(status)
        , retryAfter_(retryAfter) {}
    int Status() const { return status_; }
    int RetryAfter() const { return retryAfter_; } ///< 0 if trying again would not help

private:
    int status_;
    int retryAfter_;
};

} // namespace exchange
