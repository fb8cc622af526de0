#pragma once

#include <string>
#include <string_view>

namespace exchange {

/// Random numbers and digests, from OpenSSL.
namespace Secrets {
int RandomID();                            ///< positive, 32 bits, at least 2
std::string RandomToken();                 ///< 64 hexadecimal digits
std::string Digest(std::string_view text); ///< SHA-256 as 64 hexadecimal digits
/// HMAC-SHA-256 as 64 hexadecimal digits: nobody without the key can compute or test it.
std::string Keyed(std::string_view key, std::string_view text);
bool Equal(std::string_view one, std::string_view other); ///< in constant time
} // namespace Secrets

} // namespace exchange
