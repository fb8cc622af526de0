#include "runtime/Clock.h"

#include <optional>

namespace {
std::optional<QDate>& FixedToday() {
    static std::optional<QDate> today;
    return today;
}
} // namespace

QDate Clock::Today() {
    return FixedToday().value_or(QDate::currentDate());
}

void Clock::SetToday(QDate today) {
    FixedToday() = today;
}

void Clock::UseSystemClock() {
    FixedToday().reset();
}
