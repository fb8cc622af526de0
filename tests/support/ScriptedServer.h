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

/// A web server on loopback that answers as a test tells it: whole replies, or raw bytes for those
/// that no proper server would give. It lives in the thread of the test and works while that waits.
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

    /// By method and path, "GET /page"; what is not told is answered with 404 and a page of markup.
    void Tell(const QString& line, Answer answer) { answers_[line] = std::move(answer); }
    void Tell(const QString& line, int status, const QByteArray& body);

    static Answer Raw(const QByteArray& bytes); ///< the connection is closed behind them
    static Answer Silence();                    ///< the connection stays open
    static Answer Trickle();                    ///< a proper reply, byte after byte, without an end
    Answer Flood(qint64 length);                ///< of that many bytes, told beforehand

    const QList<Request>& Requests() const { return requests_; }
    QStringList Lines() const;
    qint64 Flooded() const { return flooded_; } ///< what of a flood has been taken

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
