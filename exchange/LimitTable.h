#pragma once

#include "exchange/Config.h"

#include <span>

namespace exchange {

/// One limit of the service: what it limits and why, and the reply beyond it. Each limit is defined
/// here only: the settings are read with this table, and docs/exchange.md shows it.
struct Limit {
    const char* name;
    const char* setting; ///< null if it is fixed
    int Config::*value;  ///< likewise
    int least;
    int most; ///< of a fixed one, itself
    const char* unit;
    const char* reason;
    const char* beyond;

    bool IsFixed() const { return setting == nullptr; }
    int Default() const { return IsFixed() ? most : Config{}.*value; }
    std::string Row() const; ///< as a line of the table on the page
};

std::span<const Limit> AllLimits();      ///< the fixed ones last
std::span<const Limit> SettableLimits(); ///< those with a setting

} // namespace exchange
