#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

class QNetworkReply;
class QNetworkRequest;

struct HttpReply {
    int status = 0;
    QByteArray body;
};

/// Blocking HTTP. A call returns the reply, whatever its status. It fails with a RuntimeError if
/// there is no connection, the certificate is not trusted, the body is shorter than its
/// Content-Length or longer than `atMost`, or the time is over. Without Content-Length we cannot
/// detect truncation: whoever needs the whole reply checks its content. Redirections are not
/// followed. While a call waits, the interface repaints and drops input.
class HttpClient {
public:
    /// For one whole call, from the look-up of the name to the last byte.
    static constexpr std::chrono::milliseconds DefaultLimit = std::chrono::seconds(30);

    std::chrono::milliseconds Limit() const { return limit_; }
    void SetLimit(std::chrono::milliseconds limit) { limit_ = limit; }

    /// Sent again if the connection closes before the reply: for questions that change nothing.
    HttpReply Get(const QString& address, qint64 atMost) const;
    /// The others are never sent twice. Without Content-Length, a reply to them may be lost.
    HttpReply GetOnce(const QString& address, qint64 atMost) const;
    HttpReply PostJson(const QString& address, const QByteArray& json, const QByteArray& token,
                       qint64 atMost) const;

private:
    HttpReply SendOnce(const QByteArray& method, QNetworkRequest request, const QByteArray& bytes,
                       qint64 atMost) const;
    HttpReply Await(QNetworkReply& reply, qint64 atMost) const;

    std::chrono::milliseconds limit_ = DefaultLimit;
};
