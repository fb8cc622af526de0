#pragma once

#include <string>
#include <vector>

/// Stores recipes of ten ingredients in a database that a server has made: a few through the
/// server's own code, and the others as copies of them under IDs of their own.
namespace Fill {
std::vector<int> With(const std::string& database, int recipes);
} // namespace Fill
