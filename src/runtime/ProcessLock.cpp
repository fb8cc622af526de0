#include "runtime/ProcessLock.h"

#include <QFile>
#include <QThread>

#ifndef Q_OS_WIN
#include <sys/file.h>
#endif

namespace {
constexpr int WritingTime = 50; ///< milliseconds; a process that lives has signed its lock by then

/// The process that made the file also holds the system's lock on it. The system frees that lock
/// when the process ends. On Windows a held file cannot even be opened.
bool IsTaken([[maybe_unused]] const QFile& file) {
#ifdef Q_OS_WIN
    return false;
#else
    return flock(file.handle(), LOCK_SH | LOCK_NB) != 0;
#endif
}

/// To remove a stale lock, QLockFile takes a second one, the guard. If a process was killed before
/// it signed the guard, QLockFile would respect it for half a minute.
void FreeGuard(const QString& path) {
    if (QFile::exists(path))
        ProcessLock(path).TryLock();
}
} // namespace

ProcessLock::ProcessLock(const QString& path)
    : file_(path) {
    file_.setStaleLockTime(0); // a lock is stale only if its process is gone, never by age
}

ProcessLock::Result ProcessLock::TryLock() {
    if (file_.isLocked() || file_.tryLock(0))
        return Result::Held;
    if (file_.error() == QLockFile::LockFailedError) {
        if (HasOwner())
            FreeGuard(Path() + QLatin1String(".rmlock"));
        else
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

bool ProcessLock::IsHeldByAnother() const {
    QFile file(Path());
    if (file_.isLocked() || !file.exists())
        return false;
    return !file.open(QIODevice::ReadOnly) || IsTaken(file);
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

/// If a process was killed between making the file and signing it, QLockFile never takes that file
/// for stale. The file of a living process is not removed, because the process holds it.
void ProcessLock::RemoveWithoutOwner() {
    QThread::msleep(WritingTime);
    if (!HasOwner())
        file_.removeStaleLockFile();
}
