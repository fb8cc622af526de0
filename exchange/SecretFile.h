#pragma once

#include <string>

namespace exchange {

/// The key of the digests that clients and recipients are counted by. It is in a file beside the
/// database, not in it: a copy of the database identifies nobody.
namespace SecretFile {
/// Creates the file with mode 600 if it does not exist. Fails with ConfigError if it cannot be read
/// or created, or if others can read it.
std::string Read(const std::string& path);
} // namespace SecretFile

} // namespace exchange
