#pragma once

#include <string_view>

namespace exchange {

/// One plain address, name@host.domain: no display name, no list, no quoting, nothing that a header
/// or a mail command could take for its own.
bool IsMailAddress(std::string_view text);

} // namespace exchange
