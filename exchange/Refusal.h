#pragma once

#include <stdexcept>
#include <string>

namespace exchange {

/// A request that is not done: the status of the reply, and a reason for the one who sent it.
class Refusal : public std::runtime_error {
public:
    Refusal(int status, const std::string& reason)
        : std::runtime_error(reason)
        , status_(status) {}
    int Status() const { return status_; }

private:
    int status_;
};

} // namespace exchange
