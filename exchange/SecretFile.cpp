#include "exchange/SecretFile.h"

#include "exchange/Config.h"
#include "exchange/Secrets.h"
#include "exchange/Text.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace exchange::SecretFile {
namespace {
constexpr size_t Shortest = 32;

/// Writes a new secret to a temporary file and links it to the right name. If several servers start
/// together, the first link wins, and nobody ever reads half a file.
void Make(const std::string& path) {
    std::string draft = path + ".XXXXXX";
    const int file = ::mkstemp(draft.data());
    if (file < 0)
        throw ConfigError("cannot create " + path + " for the secret");
    const auto secret = Secrets::RandomToken() + "\n";
    const bool written =
        ::write(file, secret.data(), secret.size()) == static_cast<ssize_t>(secret.size()) &&
        ::fsync(file) == 0;
    ::close(file);
    if (written) [[maybe_unused]]
        const int other = ::link(draft.c_str(), path.c_str());
    ::unlink(draft.c_str());
}
} // namespace

std::string Read(const std::string& path) {
    struct stat state {};
    if (::stat(path.c_str(), &state) != 0) {
        Make(path);
        ::stat(path.c_str(), &state);
    }
    if ((state.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        throw ConfigError(path +
                          " contains a secret; only its owner may have access to it (mode 600)");
    std::ifstream file(path);
    std::string secret;
    std::getline(file, secret);
    secret = Trimmed(secret);
    if (secret.size() < Shortest)
        throw ConfigError(path + " must contain a secret of at least 32 characters");
    return secret;
}

} // namespace exchange::SecretFile
