#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

#include <sys/types.h>

class QRandomGenerator;

/// Work in a child of this process, which is killed at a random moment: so many milliseconds after
/// its first lines, or, because the moments of a write are short, so many microseconds after one of
/// the changes that it makes in its folder. The child begins as a copy of this process, so a start
/// costs little. Nothing may be open here that the child would share.
class KilledWork {
public:
    /// The child writes what it acknowledges to the descriptor, a line each.
    using Work = std::function<void(int acknowledge)>;

    KilledWork(const QString& folder, const Work& work);
    ~KilledWork();
    KilledWork(const KilledWork&) = delete;
    KilledWork& operator=(const KilledWork&) = delete;

    /// What the child acknowledged until it was killed or had done its work.
    QByteArray KillAtRandom(QRandomGenerator& random, int mostLines, int mostMilliseconds);
    QByteArray LetItEnd();

    bool WasKilled() const { return killed_; } ///< and had not ended before

private:
    bool Await(int descriptor, int milliseconds);
    bool TakeLines();
    void AwaitLines(int count);
    void AwaitChanges(int count);
    void Reap();

    pid_t child_ = -1;
    int lines_ = -1;   ///< reads what the child acknowledges
    int changes_ = -1; ///< reads the changes in the folder
    QByteArray said_;
    bool ended_ = false;
    bool killed_ = false;
};
