#pragma once

#include <string>
#include <string_view>

namespace exchange {

struct Request;

/// The address within a request: reads it, and writes the texts that go into one.
namespace Target {
/// Takes path and parameters into the request. False if the target is not `/path` or `/path?query`:
/// an address elsewhere is none of this server.
bool Read(std::string_view target, Request& request);

/// Takes `name=value&name=value`, as a query or a form writes it, into the parameters.
void ReadParams(std::string_view text, Request& request);

std::string Encoded(std::string_view text); ///< for a value within a query
std::string Decoded(std::string_view text); ///< a `%` that begins no byte stays as it is
} // namespace Target

} // namespace exchange
