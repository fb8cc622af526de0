#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace exchange {

/// The turns of those who write. On the embedded database one writes at a time. On either database,
/// only so many may write or wait for it as there are seats: when writing is held up, the other
/// workers go on reading.
class WriteGate {
public:
    explicit WriteGate(int seats)
        : seats_(seats) {}

    /// Held while its owner writes. Fails if nobody has come or gone for too long.
    class Turn {
    public:
        Turn(WriteGate& gate, bool alone);
        ~Turn();
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        WriteGate& gate_;
        bool alone_;
    };

    void SetSeats(int seats);

private:
    using Clock = std::chrono::steady_clock;
    void TakeSeat(std::unique_lock<std::mutex>& lock);
    void LeaveSeat();

    std::mutex mutex_;
    std::condition_variable moved_;
    int seats_;
    int taken_ = 0;
    bool writing_ = false;
    Clock::time_point lastMove_;
};

} // namespace exchange
