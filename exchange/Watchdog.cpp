#include "exchange/Watchdog.h"

#include <condition_variable>
#include <set>
#include <thread>

namespace exchange::Watchdog {
namespace {
constexpr std::chrono::milliseconds Interval(50);
constexpr std::chrono::seconds InAHurry(2);

/// The watches of the process, and the thread that checks them.
class Round {
public:
    static Round& One() {
        static Round round;
        return round;
    }

    ~Round() {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        wake_.notify_all();
        thread_.join();
    }
    Round(const Round&) = delete;
    Round& operator=(const Round&) = delete;

    void Add(Watch* watch) {
        const std::lock_guard lock(mutex_);
        watches_.insert(watch);
    }
    void Remove(Watch* watch) {
        const std::lock_guard lock(mutex_);
        watches_.erase(watch);
    }
    void Hurry() {
        const std::lock_guard lock(mutex_);
        last_ = std::min(last_, Clock::now() + InAHurry);
    }

private:
    Round()
        : thread_([this] { Run(); }) {}

    void Run() {
        std::unique_lock lock(mutex_);
        while (!ending_) {
            const auto now = Clock::now();
            for (auto* watch : watches_)
                watch->Look(now, last_);
            wake_.wait_for(lock, Interval, [this] { return ending_; });
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::set<Watch*> watches_;
    Clock::time_point last_ = Clock::time_point::max();
    bool ending_ = false;
    std::thread thread_;
};
} // namespace

Watch::Watch(std::function<void()> interrupt)
    : interrupt_(std::move(interrupt)) {
    Round::One().Add(this);
}

Watch::~Watch() {
    Round::One().Remove(this);
}

void Watch::Begin(std::chrono::seconds most) {
    const std::lock_guard lock(mutex_);
    end_ = Clock::now() + most;
}

void Watch::End() {
    const std::lock_guard lock(mutex_);
    end_ = Clock::time_point::max();
}

void Watch::Look(Clock::time_point now, Clock::time_point last) {
    const std::lock_guard lock(mutex_);
    if (end_ != Clock::time_point::max() && now > std::min(end_, last))
        interrupt_();
}

void Hurry() {
    Round::One().Hurry();
}

} // namespace exchange::Watchdog
