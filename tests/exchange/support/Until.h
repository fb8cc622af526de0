#pragma once

#include <chrono>
#include <thread>

/// What a busy machine takes at most for what should happen at once.
inline constexpr std::chrono::seconds Soon(20);

/// Waits until a condition holds; false if it does not within two minutes.
template <class Condition> bool Until(const Condition& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(2);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}
