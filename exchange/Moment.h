#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace exchange {

namespace Moment {
inline constexpr long long Second = 1'000'000;
inline constexpr long long Hour = 3600 * Second;

/// Microseconds since 1970: of two recipes that one person sends in turn, the later one is newer.
inline long long Now() {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

/// In UTC; `format` is that of strftime.
inline std::string Written(const char* format, long long moment = Now()) {
    const auto seconds = static_cast<std::time_t>(moment / Second);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[64];
    return {text, std::strftime(text, sizeof text, format, &parts)};
}
} // namespace Moment

} // namespace exchange
