#pragma once

#include <string>
#include <vector>

namespace CLI {
class Validator;
}

/// Accepts some words, in upper or lower case, and makes each the one of the list.
CLI::Validator OneOf(const std::vector<std::string>& words);
