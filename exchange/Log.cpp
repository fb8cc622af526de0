#include "exchange/Log.h"

#include "exchange/Json.h"

#include <chrono>
#include <ctime>
#include <unistd.h>

namespace exchange::Log {
namespace {
std::string Now() {
    const auto now = std::chrono::system_clock::now();
    const auto seconds = std::chrono::system_clock::to_time_t(now);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[40];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

struct Append {
    std::string& line;
    void operator()(std::string_view text) const { Json::AppendText(line, text); }
    void operator()(double number) const { Json::AppendNumber(line, number); }
    void operator()(int number) const { line += std::to_string(number); }
};

/// One write a line, so that the lines of several threads never mix.
void Write(std::string_view level, std::string_view event, Fields fields) {
    std::string line = "{\"time\":\"" + Now() + "\",\"level\":\"";
    line.append(level).append("\",\"event\":");
    Json::AppendText(line, event);
    for (const auto& [name, value] : fields) {
        line.append(",\"").append(name).append("\":");
        std::visit(Append{line}, value);
    }
    line += "}\n";
    [[maybe_unused]] const auto written = ::write(STDOUT_FILENO, line.data(), line.size());
}
} // namespace

void Info(std::string_view event, Fields fields) {
    Write("info", event, fields);
}
void Error(std::string_view event, Fields fields) {
    Write("error", event, fields);
}

} // namespace exchange::Log
