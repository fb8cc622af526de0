#pragma once

#include <string>
#include <string_view>

namespace exchange {

struct Request;

/// The target of a request: its path and its query.
namespace Target {
/// Reads path and parameters into the request. False if the target is not `/path` or `/path?query`:
/// this server is not a proxy.
bool Read(std::string_view target, Request& request);

/// Appends the `name=value&name=value` of a query or a form to the parameters.
void ReadParams(std::string_view text, Request& request);

std::string Encoded(std::string_view text); ///< for a value within a query
std::string Decoded(std::string_view text); ///< a `%` without two digits stays as it is
} // namespace Target

} // namespace exchange
