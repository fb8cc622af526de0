#include "exchange/Rates.h"

#include "exchange/Limits.h"
#include "exchange/Refusal.h"

#include <algorithm>

namespace exchange {
namespace {
constexpr size_t MostKept = 100'000;

/// What is left of an amount after a time, at `most` a minute.
double Left(double taken, std::chrono::duration<double> time, double most) {
    return std::max(0.0, taken - time.count() * most / 60);
}
} // namespace

Rates::Rates(const Config& config)
    : mostPerMinute_{config.searches_per_client_minute, config.pages_per_client_minute} {}

void Rates::Take(Kind kind, const Visitor& visitor) {
    const std::lock_guard lock(mutex_);
    if (!TakeFrom(levels_[kind], visitor, mostPerMinute_[kind]))
        throw Refusal(429, "Too many requests. Please try again in a minute.", Refusal::Minute);
}

bool Rates::TakeFrom(Levels& levels, const Visitor& visitor, double most) {
    const auto now = Clock::now();
    if (levels.size() > MostKept)
        ForgetEmpty(levels, most);
    for (size_t width = 0; width < visitor.networks.size(); ++width) {
        auto& level = levels[visitor.networks[width]];
        const double allowed = most * Limits::Growth[width];
        level.taken = Left(level.taken, now - level.when, allowed);
        level.when = now;
        if (level.taken + 1 > allowed)
            return false;
    }
    for (const auto& network : visitor.networks)
        levels[network].taken += 1;
    return true;
}

/// The levels of wider networks decrease faster than this assumes.
void Rates::ForgetEmpty(Levels& levels, double most) {
    const auto now = Clock::now();
    std::erase_if(levels, [&](const auto& entry) {
        return Left(entry.second.taken, now - entry.second.when, most) == 0;
    });
    if (levels.size() > MostKept)
        levels.clear();
}

} // namespace exchange
