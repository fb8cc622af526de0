#include "exchange/Supervisor.h"

#include "exchange/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace exchange::Supervisor {
namespace {
/// A datagram to the socket that the environment names; `@` stands for a name outside the files.
void Tell(std::string_view state) {
    const char* name = std::getenv("NOTIFY_SOCKET");
    const std::string_view path = name ? name : "";
    sockaddr_un address{};
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return;
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    if (path.front() == '@')
        address.sun_path[0] = '\0';
    const int socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return;
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
    [[maybe_unused]] const auto sent =
        ::sendto(socket, state.data(), state.size(), MSG_NOSIGNAL | MSG_DONTWAIT,
                 reinterpret_cast<const sockaddr*>(&address), size);
    ::close(socket);
}
} // namespace

void TellReady() {
    Tell("READY=1");
}
void TellAlive() {
    Tell("WATCHDOG=1");
}
void TellEnding() {
    Tell("STOPPING=1");
}

std::optional<std::chrono::microseconds> Interval() {
    const char* text = std::getenv("WATCHDOG_USEC");
    const auto number = WholeNumber(text ? text : "", 1, std::numeric_limits<int>::max());
    return number ? std::optional(std::chrono::microseconds(*number)) : std::nullopt;
}

} // namespace exchange::Supervisor
