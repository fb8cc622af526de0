#include "commands/Waiting.h"

#include "commands/Session.h"

Waiting::Waiting(const Session& session, QString work, std::chrono::milliseconds every)
    : session_(session)
    , work_(std::move(work))
    , every_(every)
    , thread_([this](const std::stop_token& stop) { Tell(stop); }) {}

void Waiting::Tell(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    for (int times = 1;
         !stopped_.wait_for(lock, stop, every_, [&] { return stop.stop_requested(); }); ++times)
        session_.Tell(
            QStringLiteral("%1, %2 s")
                .arg(work_)
                .arg(std::chrono::duration_cast<std::chrono::seconds>(times * every_).count()));
}
