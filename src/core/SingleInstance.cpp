#include "core/SingleInstance.h"

#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <cstdio>

namespace {

constexpr auto request = "activate";
constexpr int patience = 100;  ///< milliseconds for one word across the socket
constexpr int attempts = 40;   ///< until a start that cannot reach the first one gives up
constexpr int shortPause = 50; ///< milliseconds between two attempts

QString FolderOr(const QString& folder) {
    if (!folder.isEmpty())
        return folder;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return own.isEmpty() ? QDir::tempPath() : own;
}

/// Pipes have names of their own where sockets are files.
QString AddressIn(const QString& folder) {
#ifdef Q_OS_WIN
    return "halvane-" + QString::number(qHash(folder), 16);
#else
    return folder + "/halvane.socket";
#endif
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent)
    , folder_(FolderOr(folder))
    , lock_(folder_ + "/halvane.lock")
    , address_(AddressIn(folder_)) {
    lock_.setStaleLockTime(0); // only a holder that has died makes it stale, never its age
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Answer);
}

SingleInstance::~SingleInstance() {
    Release();
}

/// A lock that cannot be made at all, in a folder that is not writable, keeps nobody out.
bool SingleInstance::HoldLock() {
    return lock_.isLocked() || lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
}

bool SingleInstance::Claim() {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (HoldLock()) {
            Listen();
            return true;
        }
        if (AskOther())
            return false;
        QThread::msleep(shortPause); // the other has the lock, but does not listen yet
    }
    std::fprintf(stderr, "halvane: another start holds %s and does not answer\n",
                 qPrintable(lock_.fileName()));
    return false;
}

void SingleInstance::Release() {
    server_.close();
    lock_.unlock();
}

bool SingleInstance::AskOther() const {
    QLocalSocket socket;
    socket.connectToServer(address_);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(request);
    const bool sent = socket.waitForBytesWritten(patience);
    socket.disconnectFromServer();
    return sent;
}

void SingleInstance::Listen() {
    if (server_.isListening())
        return;
    QLocalServer::removeServer(address_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(address_);
}

void SingleInstance::Answer() {
    while (QLocalSocket* caller = server_.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        const auto read = [this, caller] {
            if (caller->readAll().contains(request))
                Q_EMIT Activated();
        };
        connect(caller, &QLocalSocket::readyRead, this, read);
        if (caller->bytesAvailable() > 0)
            read();
    }
}
