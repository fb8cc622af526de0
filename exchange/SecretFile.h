#pragma once

#include <string>

namespace exchange {

/// The key of the digests under which clients and recipients are counted. It stands in a file
/// beside the database and not in it, so that a copy of the database names nobody.
namespace SecretFile {
/// Makes the file, for its owner alone, where there is none. Fails with ConfigError if it cannot be
/// read or made, or if others can read it.
std::string Read(const std::string& path);
} // namespace SecretFile

} // namespace exchange
