#pragma once

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class Session;

/// Tells on standard error that a command is still at work, where nobody knows how far it is:
/// nothing in the first second, then a line a second until it is destroyed.
class Waiting {
public:
    /// `work` is what the command does: "Checking".
    Waiting(const Session& session, QString work,
            std::chrono::milliseconds every = std::chrono::seconds(1));

private:
    void Tell(const std::stop_token& stop);

    const Session& session_;
    QString work_;
    std::chrono::milliseconds every_;
    std::mutex mutex_;
    std::condition_variable_any stopped_;
    std::jthread thread_; ///< the last member: it ends before what it uses
};
