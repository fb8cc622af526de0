#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

/// What a target does with bytes from anywhere. It must come back.
void Fuzz(const std::string& bytes);

/// Ends the run, which then names the bytes, if something that must hold does not.
inline void Expect(bool holds) {
    if (!holds)
        std::abort();
}
