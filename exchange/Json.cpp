#include "exchange/Json.h"

#include <nlohmann/json.hpp>

#include <charconv>

namespace exchange::Json {

void AppendText(std::string& json, std::string_view text) {
    json += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void AppendNumber(std::string& json, double number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    json.append(text, end);
}

void AppendNumber(std::string& json, const std::optional<double>& number) {
    if (number)
        AppendNumber(json, *number);
    else
        json += "null";
}

void AppendText(std::string& json, const std::optional<std::string>& text) {
    if (text)
        AppendText(json, std::string_view(*text));
    else
        json += "null";
}

std::string Reason(std::string_view reason) {
    std::string json = "{\"reason\":";
    AppendText(json, reason);
    return json + "}";
}

} // namespace exchange::Json
