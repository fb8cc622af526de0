#pragma once

#include <chrono>
#include <thread>

/// Waits until a condition holds; false if it does not within the time.
template <class Condition>
bool Until(const Condition& condition, std::chrono::milliseconds most = std::chrono::seconds(20)) {
    const auto end = std::chrono::steady_clock::now() + most;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}
