#include "durability/KilledWork.h"

#include <QFile>
#include <QRandomGenerator>

#include <array>
#include <chrono>
#include <csignal>
#include <thread>

#include <poll.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Patience = 120'000; ///< milliseconds without any sign of the child
constexpr int MostChanges = 60;
constexpr int MostMicroseconds = 150;

void Wait(std::chrono::microseconds time) {
    std::this_thread::sleep_for(time);
}

} // namespace

KilledWork::KilledWork(const QString& folder, const Work& work) {
    changes_ = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    inotify_add_watch(changes_, QFile::encodeName(folder).constData(),
                      IN_CREATE | IN_DELETE | IN_MODIFY);
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0 || (child_ = fork()) < 0)
        qFatal("no child can be started");
    if (child_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // an endless work must not outlive this process
        close(ends[0]);
        work(ends[1]);
        _exit(0);
    }
    close(ends[1]);
    lines_ = ends[0];
}

KilledWork::~KilledWork() {
    if (child_ > 0)
        kill(child_, SIGKILL);
    Reap();
    close(lines_);
    close(changes_);
}

/// False if nothing can be read any more.
bool KilledWork::TakeLines() {
    std::array<char, 4096> read{};
    const ssize_t count = ::read(lines_, read.data(), read.size());
    ended_ = count <= 0;
    if (!ended_)
        said_.append(read.data(), count);
    return !ended_;
}

bool KilledWork::Await(int descriptor, int milliseconds) {
    std::array<pollfd, 2> both{pollfd{descriptor, POLLIN, 0}, pollfd{lines_, POLLIN, 0}};
    if (poll(both.data(), both.size(), milliseconds) == 0)
        qFatal("the work stands still");
    if (both[1].revents != 0 && !TakeLines())
        return false;
    return both[0].revents != 0;
}

void KilledWork::AwaitLines(int count) {
    while (!ended_ && said_.count('\n') < count)
        Await(lines_, Patience);
}

void KilledWork::AwaitChanges(int count) {
    while (!ended_ && count > 0)
        if (Await(changes_, Patience)) {
            std::array<char, 4096> events{};
            const ssize_t read = ::read(changes_, events.data(), events.size());
            count -= int(read / ssize_t(sizeof(inotify_event)));
        }
}

QByteArray KilledWork::KillAtRandom(QRandomGenerator& random, int mostLines, int mostMilliseconds) {
    if (random.bounded(2) == 0) {
        AwaitLines(random.bounded(mostLines + 1));
        Wait(std::chrono::microseconds(random.bounded(mostMilliseconds * 1000 + 1)));
    } else {
        AwaitChanges(random.bounded(1, MostChanges));
        Wait(std::chrono::microseconds(random.bounded(MostMicroseconds)));
    }
    kill(child_, SIGKILL);
    return LetItEnd();
}

QByteArray KilledWork::LetItEnd() {
    while (TakeLines()) {
    }
    Reap();
    return said_;
}

void KilledWork::Reap() {
    if (child_ < 0)
        return;
    int status = 0;
    waitpid(child_, &status, 0);
    child_ = -1;
    killed_ = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    if (!killed_ && (!WIFEXITED(status) || WEXITSTATUS(status) != 0))
        qFatal("the work ended by itself: %d", status);
}
