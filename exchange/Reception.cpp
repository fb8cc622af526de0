#include "exchange/Reception.h"

#include "exchange/NetworkAddress.h"
#include "exchange/RequestFrame.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <limits>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace exchange {
namespace {
using Clock = std::chrono::steady_clock;

constexpr int Backlog = 1024;
constexpr size_t Portion = 16 * 1024;
constexpr size_t LargestKept = 64 * 1024;
constexpr int DrainSeconds = 2;
constexpr int AnswersInTurn = 16;
constexpr auto Never = std::numeric_limits<long long>::max();

long long Seconds() {
    return std::chrono::duration_cast<std::chrono::seconds>(Clock::now().time_since_epoch())
        .count();
}

std::string NameOf(const sockaddr_storage& address) {
    char text[INET6_ADDRSTRLEN] = "";
    if (address.ss_family == AF_INET)
        inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in&>(address).sin_addr, text,
                  sizeof text);
    else
        inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6&>(address).sin6_addr, text,
                  sizeof text);
    return NetworkAddress::Canonical(text).value_or(text);
}

int Listen(const std::string& address, int port) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_PASSIVE;
    addrinfo* found = nullptr;
    if (getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        throw ConfigError("\"" + address + "\" is no address to listen at");
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> owner(found, freeaddrinfo);
    const int listener = ::socket(found->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (::bind(listener, found->ai_addr, found->ai_addrlen) != 0 ||
        ::listen(listener, Backlog) != 0)
        throw ConfigError("cannot listen at " + address + " port " + std::to_string(port) + ": " +
                          std::strerror(errno));
    return listener;
}

int PortOf(int listener) {
    sockaddr_storage address{};
    socklen_t size = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.ss_family == AF_INET
                     ? reinterpret_cast<const sockaddr_in&>(address).sin_port
                     : reinterpret_cast<const sockaddr_in6&>(address).sin6_port);
}

void Watch(int poll, int operation, int descriptor, unsigned events, void* what) {
    epoll_event event{};
    event.events = events;
    event.data.ptr = what;
    epoll_ctl(poll, operation, descriptor, &event);
}
} // namespace

/// One connection. A worker that got an event of it has it to itself until Await.
struct Reception::Line {
    int socket;
    std::string client;
    std::string household;
    std::string arrived;
    std::string leaving;
    size_t left = 0;
    bool last = false;
    bool draining = false;
    std::atomic<long long> deadline;
    Registry::iterator self;

    Line(int descriptor, std::string name, std::string home, long long until)
        : socket(descriptor)
        , client(std::move(name))
        , household(std::move(home))
        , deadline(until) {}
};

Reception::Reception(const Config& config, Engine& engine)
    : config_(config)
    , engine_(engine) {}

Reception::~Reception() {
    Stop();
    for (const int descriptor : {listener_, poll_, bell_})
        if (descriptor >= 0)
            ::close(descriptor);
}

void Reception::Open() {
    listener_ = Listen(config_.address, config_.port);
    port_ = PortOf(listener_);
    poll_ = epoll_create1(EPOLL_CLOEXEC);
    bell_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
}

/// Which of the two descriptors of the reception itself an event is of is told by its address.
void Reception::Start() {
    Watch(poll_, EPOLL_CTL_ADD, bell_, EPOLLIN, &bell_);
    Watch(poll_, EPOLL_CTL_ADD, listener_, EPOLLIN | EPOLLONESHOT, &listener_);
    for (int i = 0; i < config_.workers; ++i)
        threads_.emplace_back([this] { Work(); });
    threads_.emplace_back([this] { KeepTime(); });
}

void Reception::Stop() {
    if (stopping_.exchange(true))
        return;
    const std::uint64_t one = 1;
    if (bell_ >= 0) [[maybe_unused]]
        const auto rung = ::write(bell_, &one, sizeof one);
    {
        const std::lock_guard lock(mutex_);
        stopped_.notify_all();
    }
    for (auto& thread : threads_)
        thread.join();
    Flush();
    while (!lines_.empty()) {
        Discard(lines_.front());
        Close(lines_.front());
    }
}

/// Gives the replies that are half on their way a last moment.
void Reception::Flush() {
    const auto end = Clock::now() + std::chrono::seconds(DrainSeconds);
    while (Clock::now() < end) {
        std::vector<pollfd> waiting;
        for (auto& line : lines_)
            if (line.left < line.leaving.size() && (SendPortion(line) || errno == EAGAIN))
                waiting.push_back({line.socket, POLLOUT, 0});
        if (waiting.empty())
            return;
        ::poll(waiting.data(), waiting.size(), 50);
    }
}

/// Closing on what has arrived and was not read would take from the other side what was sent.
void Reception::Discard(const Line& line) {
    char portion[Portion];
    for (int i = 0; i < 64 && ::recv(line.socket, portion, sizeof portion, 0) > 0; ++i)
        continue;
}

void Reception::Work() {
    while (!stopping_) {
        epoll_event event{};
        if (epoll_wait(poll_, &event, 1, -1) != 1 || event.data.ptr == &bell_)
            continue;
        if (event.data.ptr == &listener_)
            Accept();
        else
            Advance(*static_cast<Line*>(event.data.ptr));
    }
}

void Reception::Accept() {
    for (;;) {
        sockaddr_storage address{};
        socklen_t size = sizeof address;
        const int socket = ::accept4(listener_, reinterpret_cast<sockaddr*>(&address), &size,
                                     SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (socket >= 0)
            Admit(socket, NameOf(address));
        else if (errno == EINTR || errno == ECONNABORTED)
            continue;
        else
            break;
    }
    if (errno != EAGAIN) // out of descriptors or memory: not at once again
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    Watch(poll_, EPOLL_CTL_MOD, listener_, EPOLLIN | EPOLLONESHOT, &listener_);
}

bool Reception::IsFull(const std::string& client, const std::string& household) const {
    if (lines_.size() >= static_cast<size_t>(config_.connections))
        return true;
    const auto& proxies = config_.trusted_proxies;
    if (std::find(proxies.begin(), proxies.end(), client) != proxies.end())
        return false;
    const auto count = perHousehold_.find(household);
    return count != perHousehold_.end() && count->second >= config_.connections_per_client;
}

void Reception::Admit(int socket, const std::string& client) {
    const auto household = NetworkAddress::Household(client);
    const std::lock_guard lock(mutex_);
    if (IsFull(client, household)) {
        const auto reply = Engine::Refusal(503);
        ::send(socket, reply.data(), reply.size(), MSG_NOSIGNAL);
        ::close(socket);
        return;
    }
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    ++perHousehold_[household];
    auto& line =
        lines_.emplace_back(socket, client, household, Seconds() + config_.request_seconds);
    line.self = std::prev(lines_.end());
    Watch(poll_, EPOLL_CTL_ADD, socket, EPOLLIN | EPOLLRDHUP | EPOLLONESHOT, &line);
}

void Reception::Close(Line& line) {
    const std::lock_guard lock(mutex_);
    const auto count = perHousehold_.find(line.household);
    if (--count->second == 0)
        perHousehold_.erase(count);
    ::close(line.socket);
    lines_.erase(line.self);
}

/// After this call another worker may have the line.
void Reception::Await(Line& line, unsigned events, int seconds) {
    if (seconds > 0)
        line.deadline = Seconds() + seconds;
    Watch(poll_, EPOLL_CTL_MOD, line.socket, events | EPOLLONESHOT, &line);
}

void Reception::Advance(Line& line) {
    if (line.draining)
        return Drain(line);
    bool received = false;
    for (int answered = 0; Send(line);) {
        if (answered == AnswersInTurn)
            return Await(line, EPOLLOUT, 0);
        if (AnswerArrived(line))
            ++answered;
        else if (received)
            return AwaitMore(line);
        else if (received = Receive(line); !received)
            return;
    }
}

void Reception::AwaitMore(Line& line) {
    const bool begun = !line.arrived.empty();
    Await(line, EPOLLIN | EPOLLRDHUP, begun ? 0 : config_.idle_seconds);
}

/// Takes what has arrived; false if the line is closed by that.
bool Reception::Receive(Line& line) {
    const auto most = RequestFrame::LargestHead + static_cast<size_t>(config_.body_bytes);
    if (line.arrived.empty())
        line.deadline = Seconds() + config_.request_seconds;
    for (bool something = false; line.arrived.size() < most; something = true) {
        char portion[Portion];
        const auto count = ::recv(line.socket, portion, sizeof portion, 0);
        line.arrived.append(portion, static_cast<size_t>(std::max<ssize_t>(count, 0)));
        if (count == static_cast<ssize_t>(sizeof portion))
            continue;
        if (count > 0 || something || (count < 0 && (errno == EAGAIN || errno == EINTR)))
            return true;
        Close(line);
        return false;
    }
    return true;
}

/// Answers the first request that has arrived; false if none has arrived as a whole.
bool Reception::AnswerArrived(Line& line) {
    if (line.arrived.empty())
        return false;
    const RequestFrame frame(line.arrived, static_cast<size_t>(config_.body_bytes));
    if (frame.State() == RequestFrame::Is::Incomplete)
        return false;
    if (frame.State() == RequestFrame::Is::Refused) {
        Reply(line, Engine::Refusal(frame.Status()), true);
        return true;
    }
    line.deadline = Never;
    auto reply = engine_.Process(frame.Head(), frame.Body(), line.client, stopping_);
    line.deadline = Seconds() + config_.request_seconds;
    line.arrived.erase(0, frame.Size());
    if (line.arrived.empty() && line.arrived.capacity() > LargestKept)
        line.arrived.shrink_to_fit();
    Reply(line, std::move(reply.text), reply.close);
    return true;
}

void Reception::Reply(Line& line, std::string text, bool close) {
    line.leaving = std::move(text);
    line.left = 0;
    line.last = close;
}

/// Sends as much as the other side takes now; false if that is nothing, with `errno` set.
bool Reception::SendPortion(Line& line) {
    const auto count = ::send(line.socket, line.leaving.data() + line.left,
                              line.leaving.size() - line.left, MSG_NOSIGNAL);
    line.left += static_cast<size_t>(std::max<ssize_t>(count, 0));
    return count >= 0;
}

/// Sends what is to be sent. False if the line is out of this worker's hands: closed, or waiting
/// until the rest can be sent.
bool Reception::Send(Line& line) {
    while (line.left < line.leaving.size()) {
        if (SendPortion(line) || errno == EINTR)
            continue;
        if (errno == EAGAIN)
            Await(line, EPOLLOUT, 0);
        else
            Close(line);
        return false;
    }
    line.leaving.clear();
    if (!line.last)
        return true;
    ::shutdown(line.socket, SHUT_WR);
    line.draining = true;
    Await(line, EPOLLIN | EPOLLRDHUP, DrainSeconds);
    return false;
}

/// Lets the other side finish after the last reply: closing on what is still on its way would take
/// the reply from it.
void Reception::Drain(Line& line) {
    char portion[Portion];
    const auto count = ::recv(line.socket, portion, sizeof portion, 0);
    if (count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR)))
        Await(line, EPOLLIN | EPOLLRDHUP, 0);
    else
        Close(line);
}

/// A line whose time is over is shut, and the worker that sees its end closes it.
void Reception::CloseExpired() {
    const auto now = Seconds();
    for (const auto& line : lines_)
        if (line.deadline < now)
            ::shutdown(line.socket, SHUT_RDWR);
}

void Reception::KeepTime() {
    std::unique_lock lock(mutex_);
    while (!stopping_) {
        stopped_.wait_for(lock, std::chrono::milliseconds(500));
        CloseExpired();
    }
}

} // namespace exchange
