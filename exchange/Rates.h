#pragma once

#include "exchange/Config.h"
#include "exchange/Visitor.h"

#include <array>
#include <chrono>
#include <mutex>
#include <string>
#include <unordered_map>

namespace exchange {

/// Limits how many expensive pages a visitor may request in a minute. Each process counts for
/// itself, since it protects its own processor time.
class Rates {
public:
    enum Kind : size_t { Searches, Pages };

    explicit Rates(const Config& config);

    /// Fails with a Refusal if a network of the visitor has asked too often.
    void Take(Kind kind, const Visitor& visitor);

private:
    using Clock = std::chrono::steady_clock;
    /// How much was used recently. It decreases at a constant rate.
    struct Level {
        double taken = 0;
        Clock::time_point when;
    };
    using Levels = std::unordered_map<std::string, Level>;

    bool TakeFrom(Levels& levels, const Visitor& visitor, double most);
    static void ForgetEmpty(Levels& levels, double most);

    std::array<int, 2> mostPerMinute_;
    std::mutex mutex_;
    std::array<Levels, 2> levels_;
};

} // namespace exchange
