#pragma once

#include <stdexcept>
#include <string>

/// A value on the command line that cannot be used. It is told with the help of the command.
class UsageError : public std::runtime_error {
public:
    /// The name may be that of a declaration, with all its forms: "--date,-d".
    UsageError(const std::string& option, const std::string& sentence)
        : std::runtime_error(option.substr(0, option.find(',')) + ": " + sentence) {}
};
