#include "exchange/Log.h"

#include "exchange/Json.h"
#include "exchange/Moment.h"

#include <spdlog/async.h>
#include <spdlog/sinks/base_sink.h>

#include <poll.h>
#include <unistd.h>

namespace exchange::Log {
namespace {
constexpr size_t MostWaiting = 8192;
constexpr size_t Portion = 4096; ///< a pipe that is ready takes so much without waiting
constexpr int Patience = 100;

/// Writes lines to the standard output. While nobody reads them, lines are dropped: the log never
/// keeps the server from ending.
class Output : public spdlog::sinks::base_sink<std::mutex> {
private:
    bool IsReady() {
        pollfd output{STDOUT_FILENO, POLLOUT, 0};
        const bool ready = ::poll(&output, 1, stalled_ ? 0 : Patience) > 0;
        stalled_ = !ready;
        return ready;
    }

    void sink_it_(const spdlog::details::log_msg& message) override {
        std::string_view line(message.payload.data(), message.payload.size());
        while (!line.empty() && IsReady()) {
            const auto written =
                ::write(STDOUT_FILENO, line.data(), std::min(line.size(), Portion));
            if (written <= 0)
                return;
            line.remove_prefix(static_cast<size_t>(written));
        }
    }
    void flush_() override {}

    bool stalled_ = false;
};

struct Append {
    std::string& line;
    void operator()(std::string_view text) const { Json::AppendText(line, text); }
    void operator()(double number) const { Json::AppendNumber(line, number); }
    void operator()(int number) const { line += std::to_string(number); }
};

/// Keeps a limited number of lines that wait to be written, and drops the oldest ones beyond it.
class Writer {
public:
    Writer()
        : pool_(std::make_shared<spdlog::details::thread_pool>(MostWaiting, 1))
        , logger_(std::make_shared<spdlog::async_logger>(
              "exchange", std::make_shared<Output>(), pool_,
              spdlog::async_overflow_policy::overrun_oldest)) {}

    void Add(const std::string& line) { logger_->info(spdlog::string_view_t(line)); }

private:
    std::shared_ptr<spdlog::details::thread_pool> pool_;
    std::shared_ptr<spdlog::async_logger> logger_;
};

void Write(std::string_view level, std::string_view event, Fields fields) {
    static Writer writer;
    std::string line = "{\"time\":\"" + Moment::Written("%Y-%m-%dT%H:%M:%SZ") + "\",\"level\":\"";
    line.append(level).append("\",\"event\":");
    Json::AppendText(line, event);
    for (const auto& [name, value] : fields) {
        line.append(",\"").append(name).append("\":");
        std::visit(Append{line}, value);
    }
    writer.Add(line += "}\n");
}
} // namespace

void Info(std::string_view event, Fields fields) {
    Write("info", event, fields);
}
void Error(std::string_view event, Fields fields) {
    Write("error", event, fields);
}

} // namespace exchange::Log
