#pragma once

#include <chrono>

namespace exchange {

namespace Moment {
/// Milliseconds since 1970.
inline long long Now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}
} // namespace Moment

} // namespace exchange
