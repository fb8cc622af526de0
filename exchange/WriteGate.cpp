#include "exchange/WriteGate.h"

#include <stdexcept>

namespace exchange {
namespace {
/// If no writer has come or gone for so long, writes are blocked.
constexpr std::chrono::seconds Standstill(1);
constexpr std::chrono::seconds LongestWait(10);
} // namespace

WriteGate::Turn::Turn(WriteGate& gate, bool alone)
    : gate_(gate)
    , alone_(alone) {
    std::unique_lock lock(gate_.mutex_);
    gate_.TakeSeat(lock);
    if (!alone_)
        return;
    if (!gate_.moved_.wait_for(lock, LongestWait, [this] { return !gate_.writing_; })) {
        gate_.LeaveSeat();
        throw std::runtime_error("a write has waited too long for its turn");
    }
    gate_.writing_ = true;
}

WriteGate::Turn::~Turn() {
    const std::lock_guard lock(gate_.mutex_);
    if (alone_)
        gate_.writing_ = false;
    gate_.LeaveSeat();
}

void WriteGate::SetSeats(int seats) {
    const std::lock_guard lock(mutex_);
    seats_ = seats;
}

void WriteGate::TakeSeat(std::unique_lock<std::mutex>& lock) {
    while (taken_ >= seats_)
        if (moved_.wait_until(lock, lastMove_ + Standstill) == std::cv_status::timeout &&
            Clock::now() >= lastMove_ + Standstill && taken_ >= seats_)
            throw std::runtime_error("writes are blocked");
    ++taken_;
    lastMove_ = Clock::now();
}

void WriteGate::LeaveSeat() {
    --taken_;
    lastMove_ = Clock::now();
    moved_.notify_all();
}

} // namespace exchange
