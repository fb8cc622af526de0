#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// The longest text that is stored as an address.
inline constexpr size_t LongestMailAddress = 320;

/// One plain address, name@host.domain: no display name, no list, no quotes, nothing with a meaning
/// in a header or an SMTP command, and nothing that a mail host could route to another host, a file
/// or a program.
bool IsMailAddress(std::string_view text);

/// The mailbox of a mail address, as far as its text shows: in lower case, without a tag
/// (`name+tag@`), and without the dots and other characters that its host ignores.
std::string MailboxOf(std::string_view address);

} // namespace exchange
