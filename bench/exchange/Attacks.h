#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Attacks, from the networks of 127.9.0.0/16. Readers come from 127.0.0.1.
namespace Attacks {
struct Target {
    int port = 0;
    std::string database;
};

struct Attack {
    const char* name;
    /// Begins it; it ends with the object.
    std::function<std::shared_ptr<void>(const Target&)> begin;
    bool databaseAnswers = true; ///< so that readers can be served
};

std::vector<Attack> All(bool embedded);
std::shared_ptr<void> HalfBodies(const Target& target); ///< a thousand, which are held
} // namespace Attacks
