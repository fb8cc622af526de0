#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

class QNetworkReply;

struct HttpReply {
    int status = 0;
    QByteArray body;
};

/// Blocking HTTP. A call returns when its reply is there, whatever its status. It fails with a
/// RuntimeError where there is no reply: no connection, a certificate that is not trusted, a body
/// shorter than its Content-Length, a body longer than is taken, the limit over. A reply without
/// Content-Length ends with the connection: who needs it whole checks its content. Redirections are
/// not followed. While a call waits, the interface repaints and takes no input.
class HttpClient {
public:
    /// For one call as a whole, from the look-up of the name to the last byte.
    static constexpr std::chrono::milliseconds DefaultLimit = std::chrono::seconds(30);

    std::chrono::milliseconds Limit() const { return limit_; }
    void SetLimit(std::chrono::milliseconds limit) { limit_ = limit; }

    HttpReply Get(const QString& address, qint64 atMost) const;
    /// A body that has gone out is never sent a second time on its own account.
    HttpReply PostJson(const QString& address, const QByteArray& json, const QByteArray& token,
                       qint64 atMost) const;

private:
    HttpReply Await(QNetworkReply& reply, qint64 atMost) const;

    std::chrono::milliseconds limit_ = DefaultLimit;
};
