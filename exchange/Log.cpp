#include "exchange/Log.h"

#include "exchange/Json.h"
#include "exchange/Moment.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace exchange::Log {
namespace {
struct Append {
    std::string& line;
    void operator()(std::string_view text) const { Json::AppendText(line, text); }
    void operator()(double number) const { Json::AppendNumber(line, number); }
    void operator()(int number) const { line += std::to_string(number); }
};

/// Writes what has gathered in a moment, in a thread of its own: a log that is slow to take its
/// lines holds up nobody who answers. What it cannot take at all is dropped beyond a measure.
class Writer {
public:
    Writer()
        : thread_([this] { Run(); }) {}

    ~Writer() {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        wake_.notify_one();
        thread_.join();
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    void Add(const std::string& line) {
        const std::lock_guard lock(mutex_);
        if (lines_.size() > Most)
            return;
        if (lines_.empty())
            wake_.notify_one();
        lines_ += line;
    }

private:
    static constexpr size_t Most = 4 << 20;
    static constexpr std::chrono::milliseconds AMoment{20};

    void Run() {
        std::unique_lock lock(mutex_);
        while (!ending_ || !lines_.empty()) {
            wake_.wait(lock, [this] { return ending_ || !lines_.empty(); });
            wake_.wait_for(lock, AMoment, [this] { return ending_; });
            const auto lines = std::exchange(lines_, {});
            lock.unlock();
            Write(lines);
            lock.lock();
        }
    }

    static void Write(std::string_view lines) {
        while (!lines.empty()) {
            const auto written = ::write(STDOUT_FILENO, lines.data(), lines.size());
            if (written <= 0)
                return;
            lines.remove_prefix(static_cast<size_t>(written));
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::string lines_;
    bool ending_ = false;
    std::thread thread_;
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
