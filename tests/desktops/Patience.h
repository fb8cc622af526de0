#pragma once

/// How long a test waits for another process before it fails: a loaded machine is slow, and a hang
/// must end with words.
inline constexpr int LongestWait = 600'000; ///< milliseconds
