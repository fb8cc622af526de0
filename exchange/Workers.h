#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace exchange {

/// Threads for work that may take time. Each client has a queue, and the queues take turns, so a
/// client with many requests delays only itself. No client ever has all of the threads.
class Workers {
public:
    explicit Workers(int threads);
    ~Workers(); ///< drops jobs that have not begun, and waits for the others
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    using Job = std::function<void()>; ///< must not throw
    void Add(const std::string& client, Job job);

private:
    struct Queue {
        std::deque<Job> jobs;
        int running = 0;
        bool hasTurn = false; ///< stands in turns_
    };

    void Run();
    bool GiveTurn(const std::string& client, Queue& queue);
    void Wake(std::unique_lock<std::mutex>& lock, bool wanted);

    std::mutex mutex_;
    std::condition_variable wake_;
    bool ending_ = false;
    int mostPerClient_;
    std::map<std::string, Queue> queues_;
    std::deque<std::string> turns_; ///< clients whose next job may begin, in order
    std::vector<std::thread> threads_;
};

} // namespace exchange
