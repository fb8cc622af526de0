#pragma once

#include "exchange/Config.h"
#include "exchange/Recipe.h"

#include <string>

namespace exchange {

/// The one mail that a recipe goes out in, headers and all, in plain text. The addresses of the
/// recipe have been checked.
std::string MailOf(const Recipe& recipe, const Config& config);

} // namespace exchange
