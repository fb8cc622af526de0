#include "monkey/Watchdog.h"

#include "monkey/Trail.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <pthread.h>
#include <time.h>

namespace {
using namespace std::chrono_literals;

constexpr auto BeatEvery = 20ms;
constexpr auto LookEvery = 100ms;
constexpr qint64 MostBusy = 1'000'000'000; ///< nanoseconds
constexpr int MostSilent = 1min / LookEvery;

qint64 Nanoseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}
} // namespace

Watchdog::Watchdog(const Trail& trail)
    : trail_(trail) {
    pthread_getcpuclockid(pthread_self(), &clock_);
    Beat();
    QObject::connect(&beats_, &QTimer::timeout, [this] { Beat(); });
    beats_.start(BeatEvery);
    thread_ = std::thread([this] { Watch(); });
}

Watchdog::~Watchdog() {
    ends_ = true;
    thread_.join();
}

void Watchdog::Beat() {
    beatAt_ = Nanoseconds(clock_);
    silent_ = 0;
}

void Watchdog::Watch() {
    while (!ends_) {
        std::this_thread::sleep_for(LookEvery);
        if (Nanoseconds(clock_) - beatAt_ > MostBusy)
            Bark("the event loop was busy for over a second");
        if (++silent_ > MostSilent)
            Bark("the event loop stood still for a minute");
    }
}

void Watchdog::Bark(const char* what) const {
    std::printf("finding: %s\n", what);
    trail_.Print();
    std::_Exit(EXIT_FAILURE);
}
