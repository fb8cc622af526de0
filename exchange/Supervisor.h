#pragma once

#include <chrono>
#include <optional>

namespace exchange {

/// What the service manager that started the server wants to hear: that it serves, that it still
/// lives, that it ends. Without such a manager nothing is said.
namespace Supervisor {
void TellReady();
void TellAlive();
void TellEnding();
/// How often it wants to hear that the server lives.
std::optional<std::chrono::microseconds> Interval();
} // namespace Supervisor

} // namespace exchange
