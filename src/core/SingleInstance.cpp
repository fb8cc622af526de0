#include "core/SingleInstance.h"

#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <cstdio>

namespace {

constexpr auto Request = "activate";
constexpr int Patience = 100;  ///< milliseconds for one message
constexpr int Attempts = 40;   ///< before a later start gives up
constexpr int ShortPause = 50; ///< milliseconds between two attempts

QString FolderOr(const QString& folder) {
    if (!folder.isEmpty())
        return folder;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return own.isEmpty() ? QDir::tempPath() : own;
}

/// On Windows the socket is a named pipe, not a file.
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
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Answer);
}

SingleInstance::~SingleInstance() {
    Release();
}

bool SingleInstance::Claim() {
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        // If the folder is not writable, there is no lock, and the program starts.
        if (lock_.TryLock() != ProcessLock::Result::HeldByAnother) {
            Listen();
            return true;
        }
        if (AskOther())
            return false;
        QThread::msleep(ShortPause); // the first start has the lock but does not listen yet
    }
    std::fprintf(stderr, "halvane: another start holds %s and does not answer\n",
                 qPrintable(lock_.Path()));
    return false;
}

void SingleInstance::Release() {
    server_.close();
    lock_.Release();
}

bool SingleInstance::AskOther() const {
    QLocalSocket socket;
    socket.connectToServer(address_);
    if (!socket.waitForConnected(Patience))
        return false;
    socket.write(Request);
    const bool sent = socket.waitForBytesWritten(Patience);
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
            if (caller->readAll().contains(Request))
                Q_EMIT Activated();
        };
        connect(caller, &QLocalSocket::readyRead, this, read);
        if (caller->bytesAvailable() > 0)
            read();
    }
}
