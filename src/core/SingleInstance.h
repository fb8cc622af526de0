#pragma once

#include "runtime/ProcessLock.h"

#include <QLocalServer>
#include <QObject>

/// Allows one running program for each user. The first start holds a lock and listens on a local
/// socket; a later start asks it to come to the front. A lock left by a crash does not count.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// The folder of lock and socket; empty: the user's run-time folder.
    explicit SingleInstance(const QString& folder = {}, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// True if this is the first start. Otherwise the first one has been asked to come to the
    /// front; if it does not answer, standard error says so.
    bool Claim();
    void Release();

Q_SIGNALS:
    void Activated(); ///< a later start asks for the window

private:
    bool AskOther() const;
    void Listen();
    void Answer();

    QString folder_;
    ProcessLock lock_;
    QString address_;
    QLocalServer server_;
};
