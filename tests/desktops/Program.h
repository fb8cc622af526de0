#pragma once

#include <QByteArray>
#include <QPoint>
#include <QProcess>
#include <QString>

/// The built program as a process, in a folder with its own files, settings and run-time folder.
/// Its first user is there, so it shows the frame.
class Program {
public:
    explicit Program(const QString& folder);

    /// Where the frame was left.
    void SetPlace(QPoint place) const;
    QPoint Place() const;

    void Start(const QProcessEnvironment& platform);
    /// A second start, which brings the first one to the front.
    bool StartAgain(const QProcessEnvironment& platform) const;
    bool Runs() const { return process_.state() != QProcess::NotRunning; }
    bool EndedWell() const;

private:
    QString Path(const char* name) const;
    QProcessEnvironment Environment(QProcessEnvironment platform) const;

    QString folder_;
    QProcess process_;
};
