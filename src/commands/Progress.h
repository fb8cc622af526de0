#pragma once

#include <QElapsedTimer>
#include <QString>

#include <chrono>

class Session;

/// Tells on standard error how far a command is: nothing in the first second, then a line a second.
class Progress {
public:
    /// `work` is what the command does: "Exporting".
    Progress(const Session& session, QString work,
             std::chrono::milliseconds every = std::chrono::seconds(1));

    void Step(qint64 done, qint64 total);

private:
    const Session& session_;
    QString work_;
    std::chrono::milliseconds every_;
    QElapsedTimer sinceLine_;
};
