#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

class QTemporaryDir;
class QRandomGenerator;

/// Work on both files that happens wholly or not at all: after a kill at any moment the files are
/// as before or as after.
class WholeWork {
public:
    virtual ~WholeWork();
    WholeWork(const WholeWork&) = delete;
    WholeWork& operator=(const WholeWork&) = delete;

    static std::vector<std::unique_ptr<WholeWork>> All(const QString& ground);

    const char* Name() const { return name_; }
    /// Does the work without a kill, so that the result is known.
    void Measure();
    /// Kills it once. False if the files are neither as before nor as after.
    bool Kill(QRandomGenerator& random);

    int Kills() const { return kills_; }
    int Finished() const { return finished_; } ///< of these, the work was done all the same

protected:
    explicit WholeWork(const char* name);

    QString Folder() const;                ///< that it works in
    QString Before() const;                ///< a folder with the files as before
    QString Aside(const char* name) const; ///< a file or folder for what it needs besides
    virtual void Do() = 0;                 ///< in the child

private:
    void LayOut() const;

    const char* name_;
    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray before_;
    QByteArray after_;
    int milliseconds_ = 0;
    int kills_ = 0;
    int finished_ = 0;
};
