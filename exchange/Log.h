#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>
#include <variant>

namespace exchange {

/// Writes one JSON object on each line of the standard output. It names routes and outcomes only:
/// never a mail address, a network address, a recipe's ID or a text of a user.
namespace Log {
using Value = std::variant<std::string_view, double, int>;
using Fields = std::initializer_list<std::pair<std::string_view, Value>>;
void Info(std::string_view event, Fields fields = {});
void Error(std::string_view event, Fields fields = {});
} // namespace Log

} // namespace exchange
