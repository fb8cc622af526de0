#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace exchange {

/// Writes JSON a value at a time onto a text.
namespace Json {
void AppendText(std::string& json, std::string_view text); ///< quoted; broken UTF-8 is replaced
void AppendNumber(std::string& json, double number); ///< the shortest text that reads the same
void AppendNumber(std::string& json, const std::optional<double>& number);
void AppendText(std::string& json, const std::optional<std::string>& text);
std::string Reason(std::string_view reason); ///< `{"reason":...}`
} // namespace Json

} // namespace exchange
