#include "runtime/ProcessLock.h"

#include <QThread>

namespace {
constexpr int WritingTime = 50; ///< milliseconds; a process that lives has signed its lock by then
} // namespace

ProcessLock::ProcessLock(const QString& path)
    : file_(path) {
    file_.setStaleLockTime(0); // a lock is stale only if its process is gone, never by age
}

ProcessLock::Result ProcessLock::TryLock() {
    if (file_.isLocked() || file_.tryLock(0))
        return Result::Held;
    if (file_.error() == QLockFile::LockFailedError && !HasOwner()) {
        RemoveWithoutOwner();
        file_.tryLock(0);
    }
    if (file_.isLocked())
        return Result::Held;
    return file_.error() == QLockFile::LockFailedError ? Result::HeldByAnother
                                                       : Result::NotPossible;
}

void ProcessLock::Release() {
    file_.unlock();
}

QString ProcessLock::Holder() const {
    qint64 process = 0;
    QString host;
    QString program;
    file_.getLockInfo(&process, &host, &program);
    return program;
}

bool ProcessLock::HasOwner() const {
    return !Holder().isEmpty();
}

/// A process that was killed between making the file and signing it leaves one that QLockFile never
/// takes for stale. A living process holds the file itself, and then it is not removed.
void ProcessLock::RemoveWithoutOwner() {
    QThread::msleep(WritingTime);
    if (!HasOwner())
        file_.removeStaleLockFile();
}
