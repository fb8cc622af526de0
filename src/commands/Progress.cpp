#include "commands/Progress.h"

#include "commands/Session.h"

#include <algorithm>

Progress::Progress(const Session& session, QString work, std::chrono::milliseconds every)
    : session_(session)
    , work_(std::move(work))
    , every_(every) {
    sinceLine_.start();
}

void Progress::Step(qint64 done, qint64 total) {
    if (sinceLine_.elapsed() < every_.count() || total <= 0)
        return;
    sinceLine_.restart();
    session_.Tell(
        QStringLiteral("%1, %2 %").arg(work_).arg(std::min<qint64>(100, done * 100 / total)));
}
