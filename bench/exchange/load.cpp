// Puts load on a server and prints what came of it, as one line:
//   requests/s  p50 ms  p99 ms  longest ms  failed
// load PORT CONNECTIONS SECONDS RATE PATHS: RATE 0 is as fast as it goes, otherwise so many
// requests a second in all, each timed from the moment at which it was due. PATHS is a file, a path
// a line, asked for in an order that a fixed seed draws.
#include <algorithm>
#include <arpa/inet.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <netinet/tcp.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace {
using Clock = std::chrono::steady_clock;
using Moment = Clock::time_point;

struct Line {
    int socket = -1;
    std::string arrived;
    Moment due;
    bool busy = false;
};

int Connect(int port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    if (::connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        std::perror("connect");
        std::exit(1);
    }
    return socket;
}

/// The size of the reply that has arrived as a whole, or 0.
size_t WholeReply(std::string_view arrived) {
    const auto head = arrived.find("\r\n\r\n");
    const auto length = arrived.find("Content-Length: ");
    if (head == std::string_view::npos || length == std::string_view::npos)
        return 0;
    const auto size = head + 4 + std::strtoul(arrived.data() + length + 16, nullptr, 10);
    return arrived.size() >= size ? size : 0;
}

class Load {
public:
    Load(int port, int connections, double seconds, double rate, const std::string& paths)
        : rate_(rate)
        , begin_(Clock::now())
        , end_(begin_ +
               std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds)))
        , lines_(static_cast<size_t>(connections)) {
        std::ifstream file(paths);
        for (std::string path; std::getline(file, path);)
            requests_.push_back("GET " + path + " HTTP/1.1\r\nHost: localhost\r\n\r\n");
        for (auto& line : lines_)
            Open(line, port);
        const auto late = Clock::now() - begin_;
        begin_ += late;
        end_ += late;
    }

    void Run() {
        while (Clock::now() < end_) {
            Due();
            epoll_event events[64];
            const int count = epoll_wait(poll_, events, 64, rate_ > 0 ? 1 : 100);
            for (int i = 0; i < count; ++i)
                Receive(*static_cast<Line*>(events[i].data.ptr));
        }
    }

    void Print() {
        std::sort(times_.begin(), times_.end());
        const auto at = [&](double share) {
            return times_.empty() ? 0
                                  : times_[static_cast<size_t>(share * double(times_.size() - 1))];
        };
        const std::chrono::duration<double> took = end_ - begin_;
        std::printf("%.0f %.2f %.2f %.2f %ld\n", double(times_.size()) / took.count(), at(0.5),
                    at(0.99), at(1), failed_);
    }

private:
    void Open(Line& line, int port) {
        line.socket = Connect(port);
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.ptr = &line;
        epoll_ctl(poll_, EPOLL_CTL_ADD, line.socket, &event);
        idle_.push_back(&line);
    }

    /// Sends what is due: at a rate by the clock, otherwise on every connection that is free.
    void Due() {
        while (!idle_.empty()) {
            const auto now = Clock::now();
            const auto due = rate_ > 0 ? begin_ + std::chrono::duration_cast<Clock::duration>(
                                                      std::chrono::duration<double>(sent_ / rate_))
                                       : now;
            if (due > now)
                return;
            auto& line = *idle_.front();
            idle_.pop_front();
            line.due = due;
            const auto& request = requests_[random_() % requests_.size()];
            if (::send(line.socket, request.data(), request.size(), MSG_NOSIGNAL) < 0)
                ++failed_;
            ++sent_;
        }
    }

    void Receive(Line& line) {
        char portion[16384];
        const auto count = ::recv(line.socket, portion, sizeof portion, 0);
        if (count <= 0) {
            ++failed_;
            epoll_ctl(poll_, EPOLL_CTL_DEL, line.socket, nullptr);
            return;
        }
        line.arrived.append(portion, static_cast<size_t>(count));
        if (WholeReply(line.arrived) == 0)
            return;
        failed_ += line.arrived.compare(0, 12, "HTTP/1.1 200") != 0;
        line.arrived.clear();
        times_.push_back(
            std::chrono::duration<double, std::milli>(Clock::now() - line.due).count());
        idle_.push_back(&line);
    }

    double rate_;
    Moment begin_;
    Moment end_;
    int poll_ = epoll_create1(0);
    std::vector<Line> lines_;
    std::deque<Line*> idle_;
    std::vector<std::string> requests_;
    std::mt19937 random_{4711};
    std::vector<double> times_;
    double sent_ = 0;
    long failed_ = 0;
};
} // namespace

int main(int argc, char** argv) {
    if (argc != 6) {
        std::fputs("load PORT CONNECTIONS SECONDS RATE PATHS\n", stderr);
        return 2;
    }
    Load load(std::atoi(argv[1]), std::atoi(argv[2]), std::atof(argv[3]), std::atof(argv[4]),
              argv[5]);
    load.Run();
    load.Print();
}
