#include "support/Port.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

Port::Port()
    : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const int shared = 1;
    ::setsockopt(socket_, SOL_SOCKET, SO_REUSEADDR, &shared, sizeof shared);
    ::bind(socket_, reinterpret_cast<sockaddr*>(&address), size);
    ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size);
    number_ = ntohs(address.sin_port);
}

Port::~Port() {
    ::close(socket_);
}
