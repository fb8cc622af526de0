#include "support/Proxy.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {
constexpr int Moment = 20; ///< milliseconds

int Connect(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address);
    return socket;
}

/// False if one side has gone.
bool Forward(int from, int to) {
    char portion[16384];
    const auto count = ::recv(from, portion, sizeof portion, 0);
    return count > 0 && ::send(to, portion, static_cast<size_t>(count), MSG_NOSIGNAL) == count;
}
} // namespace

Proxy::Proxy(std::string target)
    : target_(std::move(target))
    , listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ::bind(listener_, reinterpret_cast<sockaddr*>(&address), size);
    ::listen(listener_, 64);
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Accept(); });
}

Proxy::~Proxy() {
    ending_ = true;
    thread_.join();
    ::close(listener_);
}

void Proxy::Accept() {
    std::vector<std::thread> passing;
    while (!ending_) {
        pollfd waiting{listener_, POLLIN, 0};
        if (::poll(&waiting, 1, Moment) > 0)
            passing.emplace_back(
                [this, client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC),
                 breaks = breaks_.load()] { Pass(client, Connect(target_), breaks); });
    }
    for (auto& one : passing)
        one.join();
}

/// `breaks` is how often the line had broken when the client came.
void Proxy::Pass(int client, int server, int breaks) const {
    pollfd both[] = {{client, POLLIN, 0}, {server, POLLIN, 0}};
    const auto stands = [&] { return !ending_ && breaks_ == breaks; };
    bool open = true;
    while (open && stands()) {
        if (cut_) {
            ::poll(nullptr, 0, Moment);
            continue;
        }
        if (::poll(both, 2, Moment) <= 0 || !stands())
            continue;
        if (both[0].revents != 0)
            open = Forward(client, server);
        if (open && both[1].revents != 0)
            open = Forward(server, client);
    }
    ::close(client);
    ::close(server);
}
