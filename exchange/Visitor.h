#pragma once

#include "exchange/Config.h"

#include <httplib.h>

#include <string>

namespace exchange {

/// Who is counted for a request: the network address of the client, or what a trusted proxy says of
/// it; of an IPv6 address the part that a household has.
std::string VisitorOf(const httplib::Request& request, const Config& config);

} // namespace exchange
