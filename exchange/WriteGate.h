#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace exchange {

/// Lets threads write in turn. On SQLite, one writes at a time. On either database, only as many
/// threads may write or wait to write as there are seats: if writes are blocked, the other workers
/// still read.
class WriteGate {
public:
    explicit WriteGate(int seats)
        : seats_(seats) {}

    /// Held while its owner writes. Its constructor fails if no seat has been taken or left for too
    /// long.
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
