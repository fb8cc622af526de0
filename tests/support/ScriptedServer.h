#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QSslConfiguration;
class QTcpServer;
class QTcpSocket;

/// A web server on loopback that gives the replies set by a test: complete replies, or raw bytes
/// that no proper server sends. It runs in the thread of the test, while the test waits.
class ScriptedServer : public QObject {
public:
    struct Request {
        QString line; ///< method and path
        QHash<QByteArray, QByteArray> headers;
        QByteArray body;
    };
    using Answer = std::function<void(QTcpSocket&)>;

    ScriptedServer();
    explicit ScriptedServer(const QSslConfiguration& tls);
    ~ScriptedServer() override;

    QString Address() const;

    /// By method and path, "GET /page". Other requests get 404 and a page of markup.
    void Tell(const QString& line, Answer answer) { answers_[line] = std::move(answer); }
    void Tell(const QString& line, int status, const QByteArray& body);

    static Answer Raw(const QByteArray& bytes); ///< then closes the connection
    static Answer Silence();                    ///< the connection stays open
    static Answer Trickle();                    ///< a proper reply, byte by byte, that never ends
    Answer Flood(qint64 length);                ///< so many bytes, with a correct Content-Length

    const QList<Request>& Requests() const { return requests_; }
    QStringList Lines() const;
    qint64 Flooded() const { return flooded_; } ///< bytes of a flood that were received

private:
    void Listen();
    void Welcome();
    void Read(QTcpSocket& socket);
    void Serve(QTcpSocket& socket, const Request& request);

    std::unique_ptr<QTcpServer> server_;
    bool encrypted_ = false;
    QHash<QString, Answer> answers_;
    QHash<QTcpSocket*, QByteArray> arrived_;
    QList<Request> requests_;
    qint64 flooded_ = 0;
};
