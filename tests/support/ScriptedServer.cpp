#include "support/ScriptedServer.h"

#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

constexpr qint64 Piece = 256 * 1024;

QByteArray Head(int status, qint64 length) {
    return "HTTP/1.1 " + QByteArray::number(status) +
           " Told\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Length: " +
           QByteArray::number(length) + "\r\n\r\n";
}

/// The length of the first request, head and body; 0 until it is complete.
qsizetype WholeLength(const QByteArray& bytes, ScriptedServer::Request& request) {
    const qsizetype end = bytes.indexOf("\r\n\r\n");
    if (end < 0)
        return 0;
    const QList<QByteArray> lines = bytes.left(end).split('\n');
    request.line = QString::fromLatin1(lines.first().left(lines.first().lastIndexOf(' ')));
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers[line.left(colon).trimmed().toLower()] = line.mid(colon + 1).trimmed();
    }
    const qsizetype length = request.headers.value("content-length").toLongLong();
    request.body = bytes.mid(end + 4, length);
    return request.body.size() < length ? 0 : end + 4 + length;
}

} // namespace

ScriptedServer::ScriptedServer()
    : server_(std::make_unique<QTcpServer>()) {
    Listen();
}

ScriptedServer::ScriptedServer(const QSslConfiguration& tls)
    : encrypted_(true) {
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    server_ = std::move(server);
    Listen();
}

/// Destroys the sockets first, because their ends are recorded.
ScriptedServer::~ScriptedServer() {
    server_.reset();
}

void ScriptedServer::Listen() {
    EXPECT_TRUE(server_->listen(QHostAddress::LocalHost));
    connect(server_.get(), &QTcpServer::pendingConnectionAvailable, this, &ScriptedServer::Welcome);
}

QString ScriptedServer::Address() const {
    return QLatin1String(encrypted_ ? "https" : "http") +
           QStringLiteral("://127.0.0.1:%1").arg(server_->serverPort());
}

void ScriptedServer::Tell(const QString& line, int status, const QByteArray& body) {
    Tell(line, [=](QTcpSocket& socket) { socket.write(Head(status, body.size()) + body); });
}

void ScriptedServer::Welcome() {
    while (QTcpSocket* socket = server_->nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(*socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            arrived_.remove(socket);
            socket->deleteLater();
        });
        Read(*socket);
    }
}

void ScriptedServer::Read(QTcpSocket& socket) {
    QByteArray& bytes = arrived_[&socket];
    bytes += socket.readAll();
    Request request;
    if (const qsizetype length = WholeLength(bytes, request)) {
        bytes.remove(0, length);
        requests_ << request;
        Serve(socket, request);
    }
}

void ScriptedServer::Serve(QTcpSocket& socket, const Request& request) {
    const auto found = answers_.constFind(request.line);
    if (found != answers_.cend())
        (*found)(socket);
    else
        socket.write(Head(404, 24) + "<html>Not found.</html>\n");
}

QStringList ScriptedServer::Lines() const {
    QStringList lines;
    for (const Request& request : requests_)
        lines << request.line;
    return lines;
}

ScriptedServer::Answer ScriptedServer::Raw(const QByteArray& bytes) {
    return [bytes](QTcpSocket& socket) {
        socket.write(bytes);
        socket.disconnectFromHost();
    };
}

ScriptedServer::Answer ScriptedServer::Silence() {
    return [](QTcpSocket&) {};
}

ScriptedServer::Answer ScriptedServer::Trickle() {
    return [](QTcpSocket& socket) {
        socket.write(Head(200, Piece));
        auto* drip = new QTimer(&socket);
        connect(drip, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
        drip->start(1);
    };
}

ScriptedServer::Answer ScriptedServer::Flood(qint64 length) {
    return [this, length](QTcpSocket& socket) {
        flooded_ = 0;
        connect(&socket, &QTcpSocket::bytesWritten, this, [this, &socket, length](qint64 bytes) {
            flooded_ += bytes;
            if (flooded_ + socket.bytesToWrite() < length && socket.bytesToWrite() < Piece)
                socket.write(QByteArray(Piece, 'x'));
        });
        socket.write(Head(200, length));
    };
}
