#pragma once

#include <QLockFile>
#include <QString>

/// A lock file that at most one running process holds. The lock of a process that is gone counts
/// for nothing, even if the process was killed while it wrote the file.
class ProcessLock {
public:
    enum class Result {
        Held,
        HeldByAnother,
        NotPossible, ///< no file can be made there
    };

    explicit ProcessLock(const QString& path);

    Result TryLock();
    void Release();
    QString Path() const { return file_.fileName(); }
    bool IsHeldByAnother() const; ///< by a running process; changes nothing
    QString Holder() const;       ///< the program that holds it, empty where nobody does

private:
    bool HasOwner() const;
    void RemoveWithoutOwner();

    QLockFile file_;
};
