#pragma once

#include "exchange/Config.h"

#include <span>

namespace exchange {

/// One limit of the service: what it limits and why, and what is answered beyond it. The one place
/// for it; the settings are read by this table, and docs/exchange.md shows it.
struct Limit {
    const char* name;
    const char* setting;
    int Config::*value;
    int least;
    int most;
    const char* unit;
    const char* reason;
    const char* beyond;

    int Default() const { return Config{}.*value; }
    std::string Row() const; ///< as a line of the table on the page
};

std::span<const Limit> AllLimits();

} // namespace exchange
