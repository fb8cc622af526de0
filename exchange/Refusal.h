#pragma once

#include <stdexcept>
#include <string>

namespace exchange {

/// A request that is not done: the status of the reply, and a reason for the one who sent it. One
/// that a limit refuses tells after how many seconds the limit is another.
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
    int RetryAfter() const { return retryAfter_; } ///< 0 if that would change nothing

private:
    int status_;
    int retryAfter_;
};

} // namespace exchange
