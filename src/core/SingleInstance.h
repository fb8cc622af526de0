#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

/// One running program for each user: a lock that the first start holds, and a local socket on
/// which a later start asks the first to come forward. A crash leaves no lock behind that counts.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// Lock and socket stand in that folder; the user's own run-time folder where none is given.
    explicit SingleInstance(const QString& folder = {}, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// True where this is the first start. False where another runs, which has then been asked to
    /// come forward; one that does not answer is told of on standard error.
    bool Claim();
    void Release();

Q_SIGNALS:
    void Activated(); ///< a later start has asked for the window

private:
    bool HoldLock();
    bool AskOther() const;
    void Listen();
    void Answer();

    QString folder_;
    QLockFile lock_;
    QString address_;
    QLocalServer server_;
};
