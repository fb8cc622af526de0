#pragma once

#include "exchange/Service.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace exchange {

/// Deletes old data every few minutes: recipes that were never finished, addresses of recipes sent
/// long ago, old counters. Any number of servers may do so at once.
class Housekeeping {
public:
    explicit Housekeeping(const Service& service);
    ~Housekeeping();
    Housekeeping(const Housekeeping&) = delete;
    Housekeeping& operator=(const Housekeeping&) = delete;

private:
    void Run();
    void CleanUp() const;

    const Service& service_;
    std::mutex mutex_;
    std::condition_variable wake_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace exchange
