#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// The longest text that is stored as an address.
inline constexpr size_t LongestMailAddress = 320;

/// One plain address, name@host.domain: no display name, no list, no quoting, nothing that a header
/// or a mail command could take for its own, and nothing that a host could take for a way to
/// another host, a file or a program.
bool IsMailAddress(std::string_view text);

/// The mailbox that a mail address leads to, as far as its text tells: in lower case, without a tag
/// (`name+tag@`), and without the dots and other marks that its host ignores.
std::string MailboxOf(std::string_view address);

} // namespace exchange
