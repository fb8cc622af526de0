#pragma once

#include "exchange/Config.h"

#include <string>
#include <vector>

namespace exchange {

struct Request;

/// Who is counted for a request: the names of the networks that its client is in, narrowest first.
struct Visitor {
    std::vector<std::string> networks;
};

/// By the address of the client, or by what a trusted proxy says of it.
Visitor VisitorOf(const Request& request, const Config& config);

} // namespace exchange
