#pragma once

#include <chrono>
#include <functional>
#include <mutex>

namespace exchange {

/// Ends statements that take too long. One thread checks all connections of the process, many times
/// a second.
namespace Watchdog {
using Clock = std::chrono::steady_clock;

/// Watches one connection. The thread of the watchdog calls `interrupt` when a statement takes too
/// long; it must make the statement fail.
class Watch {
public:
    explicit Watch(std::function<void()> interrupt);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    void Begin(std::chrono::seconds most);
    void End();
    void Look(Clock::time_point now, Clock::time_point last);

private:
    std::mutex mutex_;
    std::function<void()> interrupt_;
    Clock::time_point end_ = Clock::time_point::max();
};

/// From now on, every statement gets a few seconds at most: the server is about to end.
void Hurry();
} // namespace Watchdog

} // namespace exchange
