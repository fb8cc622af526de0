#pragma once

#include "exchange/Config.h"

namespace exchange {

/// Reads the command line, the environment, and the file of settings that the command line names.
namespace CommandLine {
/// A command that the program runs instead of serving. It may take an argument.
struct Option {
    std::string name;
    std::string object; ///< the name of the argument in the help; empty if there is none
    std::string help;
};

struct Command {
    std::string action; ///< the name of an option; empty to serve
    std::string object;
    std::string help; ///< the text, if that is what was asked for
    Config config;
};

/// Fails with ConfigError on options and settings that cannot be used.
Command Read(int count, const char* const* words, const std::vector<Option>& options);
} // namespace CommandLine

} // namespace exchange
