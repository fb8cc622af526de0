#include "support/RawClient.h"

#include <arpa/inet.h>
#include <cstdlib>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

RawClient::RawClient(int port, const std::string& from)
    : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    inet_pton(AF_INET, from.c_str(), &address.sin_addr);
    ::bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        std::perror("connect");
}

RawClient::~RawClient() {
    ::close(socket_);
}

bool RawClient::Send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const auto count = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<size_t>(count));
    }
    return true;
}

void RawClient::FinishSending() const {
    ::shutdown(socket_, SHUT_WR);
}

template <class Enough> std::string RawClient::ReadUntil(const Enough& enough, int milliseconds) {
    std::string arrived;
    pollfd waiting{socket_, POLLIN, 0};
    while (!enough(arrived) && ::poll(&waiting, 1, milliseconds) > 0) {
        char portion[16384];
        const auto count = ::recv(socket_, portion, sizeof portion, 0);
        if (count <= 0)
            break;
        arrived.append(portion, static_cast<size_t>(count));
    }
    return arrived;
}

std::string RawClient::ReadToEnd(int milliseconds) {
    return ReadUntil([](const std::string&) { return false; }, milliseconds);
}

std::string RawClient::ReadReply(int milliseconds) {
    const auto isWhole = [](const std::string& arrived) {
        constexpr std::string_view length = "Content-Length: ";
        const auto head = arrived.find("\r\n\r\n");
        const auto at = arrived.find(length);
        return head != std::string::npos && at < head &&
               arrived.size() >=
                   head + 4 + std::strtoul(arrived.data() + at + length.size(), nullptr, 10);
    };
    return ReadUntil(isWhole, milliseconds);
}

std::string RawClient::Ask(int port, std::string_view bytes) {
    RawClient client(port);
    client.Send(bytes);
    return client.ReadReply();
}

bool RawClient::IsClosed(int milliseconds) {
    pollfd waiting{socket_, POLLIN, 0};
    char byte = 0;
    while (::poll(&waiting, 1, milliseconds) > 0)
        if (::recv(socket_, &byte, 1, 0) <= 0)
            return true;
    return false;
}

std::string RawClient::Talk(int port, std::string_view bytes) {
    RawClient client(port);
    client.Send(bytes);
    return client.ReadToEnd();
}

int RawClient::Status(std::string_view reply) {
    constexpr std::string_view version = "HTTP/1.1 ";
    return reply.starts_with(version) ? std::atoi(reply.substr(version.size(), 3).data()) : 0;
}

std::string RawClient::Body(std::string_view reply) {
    const auto end = reply.find("\r\n\r\n");
    return end == std::string_view::npos ? std::string() : std::string(reply.substr(end + 4));
}
