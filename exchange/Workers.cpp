#include "exchange/Workers.h"

#include <algorithm>

namespace exchange {

Workers::Workers(int threads)
    : mostPerClient_(std::max(1, threads - std::max(1, threads / 4))) {
    for (int i = 0; i < threads; ++i)
        threads_.emplace_back([this] { Run(); });
}

Workers::~Workers() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_all();
    for (auto& thread : threads_)
        thread.join();
}

void Workers::Add(const std::string& client, Job job) {
    std::unique_lock lock(mutex_);
    auto& queue = queues_[client];
    queue.jobs.push_back(std::move(job));
    Wake(lock, GiveTurn(client, queue));
}

bool Workers::GiveTurn(const std::string& client, Queue& queue) {
    if (queue.hasTurn || queue.jobs.empty() || queue.running >= mostPerClient_)
        return false;
    queue.hasTurn = true;
    turns_.push_back(client);
    return true;
}

/// Unlocks first, since the woken thread needs the lock.
void Workers::Wake(std::unique_lock<std::mutex>& lock, bool wanted) {
    lock.unlock();
    if (wanted)
        wake_.notify_one();
}

void Workers::Run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return ending_ || !turns_.empty(); });
        if (ending_)
            return;
        const auto client = std::move(turns_.front());
        turns_.pop_front();
        auto& queue = queues_[client];
        queue.hasTurn = false;
        auto job = std::move(queue.jobs.front());
        queue.jobs.pop_front();
        ++queue.running;
        Wake(lock, GiveTurn(client, queue));
        job();
        job = nullptr;
        lock.lock();
        --queue.running;
        GiveTurn(client, queue); // this thread takes the next turn
        if (queue.running == 0 && queue.jobs.empty())
            queues_.erase(client);
    }
}

} // namespace exchange
