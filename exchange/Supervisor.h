#pragma once

#include <chrono>
#include <optional>

namespace exchange {

/// Tells systemd that the server is ready, that it still runs, and that it ends. Does nothing if
/// systemd did not start the server.
namespace Supervisor {
void TellReady();
void TellAlive();
void TellEnding();
/// How often systemd wants to hear that the server still runs.
std::optional<std::chrono::microseconds> Interval();
} // namespace Supervisor

} // namespace exchange
