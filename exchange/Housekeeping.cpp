#include "exchange/Housekeeping.h"

#include "exchange/Log.h"
#include "exchange/Moment.h"
#include "exchange/RecipeStore.h"

namespace exchange {
namespace {
constexpr std::chrono::minutes Interval(10);
} // namespace

Housekeeping::Housekeeping(const Service& service)
    : service_(service)
    , thread_([this] { Run(); }) {}

Housekeeping::~Housekeeping() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_all();
    thread_.join();
}

void Housekeeping::Run() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        lock.unlock();
        CleanUp();
        lock.lock();
        wake_.wait_for(lock, Interval, [this] { return ending_; });
    }
}

void Housekeeping::CleanUp() const {
    try {
        const Pool::Lease lease(service_.pool);
        RecipeStore store(*lease);
        const auto now = Moment::Now();
        store.SweepUnfinished(now - service_.config.unfinished_hours * Moment::Hour);
        store.ForgetAddresses(now - 24 * Moment::Hour * service_.config.address_days);
        Limits::ForgetOld(*lease);
    } catch (const std::exception& error) {
        const auto what = Connection::Describe(error);
        Log::Error("housekeeping", {{"what", what}});
    }
}

} // namespace exchange
