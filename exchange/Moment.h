#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace exchange {

namespace Moment {
inline constexpr long long Hour = 3'600'000; ///< in milliseconds

/// Milliseconds since 1970.
inline long long Now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

/// In universal time, in the manner of strftime.
inline std::string Written(const char* format, long long moment = Now()) {
    const auto seconds = static_cast<std::time_t>(moment / 1000);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[64];
    return {text, std::strftime(text, sizeof text, format, &parts)};
}
} // namespace Moment

} // namespace exchange
