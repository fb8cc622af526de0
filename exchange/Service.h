#pragma once

#include "exchange/Config.h"
#include "exchange/Limits.h"
#include "exchange/Mailer.h"
#include "exchange/MissGuard.h"
#include "exchange/Pool.h"
#include "exchange/Rates.h"

namespace exchange {

/// What all request handlers share. Lives as long as the server.
struct Service {
    const Config& config;
    Pool& pool;
    const Limits& limits;
    const Mailer& mailer;
    const std::string& secret; ///< the key of every digest and token; it is in no database
    const MissGuard& guard;
    Rates& rates;
};

} // namespace exchange
