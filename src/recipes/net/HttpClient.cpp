#include "recipes/net/HttpClient.h"

#include "runtime/InputHold.h"
#include "runtime/RuntimeError.h"

#include <QEventLoop>
#include <QIODevice>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <algorithm>

namespace {

/// The network layer repeats a request if the connection closes before a reply: a recipe would be
/// appended or mailed twice. It cannot repeat one whose body can be read only once, even an empty
/// one.
class OneWayBody : public QIODevice {
public:
    explicit OneWayBody(const QByteArray& bytes)
        : rest_(bytes) {
        open(QIODevice::ReadOnly);
    }
    bool isSequential() const override { return true; }
    bool seek(qint64) override { return false; }
    bool atEnd() const override { return bytesAvailable() == 0; }
    qint64 bytesAvailable() const override { return rest_.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* to, qint64 most) override {
        const qint64 count = std::min<qint64>(most, rest_.size());
        std::copy_n(rest_.cbegin(), count, to);
        rest_.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray rest_;
};

/// Asks for replies without compression, so that their length can be compared with Content-Length.
QNetworkRequest RequestTo(const QString& address) {
    QNetworkRequest request{QUrl(address)};
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Halvane"));
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    return request;
}

int StatusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Without Content-Length we cannot detect truncation: the end of the connection ends the reply.
/// The network layer treats a reset, and an end between two chunks, in the same way.
bool IsOfItsLength(const QNetworkReply& reply, qint64 length) {
    const QVariant told = reply.header(QNetworkRequest::ContentLengthHeader);
    return told.isNull() || told.toLongLong() == length;
}

/// A server that answers and closes before the network layer expects a reply makes it send the
/// request again, which the one-way body prevents. The reply is there, and the close ends it.
bool EndsWithTheConnection(const QNetworkReply& reply) {
    return reply.error() == QNetworkReply::ContentReSendError && StatusOf(reply) > 0 &&
           !reply.hasRawHeader("Transfer-Encoding");
}

/// The network layer turns a status of 400 or above into one of these errors. The reply is there
/// all the same.
bool HasCome(const QNetworkReply& reply) {
    const QNetworkReply::NetworkError error = reply.error();
    const bool refused = (error >= QNetworkReply::ContentAccessDenied &&
                          error <= QNetworkReply::UnknownContentError) ||
                         error == QNetworkReply::ProtocolInvalidOperationError ||
                         error >= QNetworkReply::InternalServerError;
    return reply.isFinished() &&
           (error == QNetworkReply::NoError || (refused && StatusOf(reply) >= 400) ||
            EndsWithTheConnection(reply));
}

} // namespace

/// Each call has a connection of its own: the server may close a kept one just when we use it.
HttpReply HttpClient::Get(const QString& address, qint64 atMost) const {
    QNetworkAccessManager network;
    return Await(*network.get(RequestTo(address)), atMost);
}

HttpReply HttpClient::GetOnce(const QString& address, qint64 atMost) const {
    return SendOnce("GET", RequestTo(address), {}, atMost);
}

HttpReply HttpClient::PostJson(const QString& address, const QByteArray& json,
                               const QByteArray& token, qint64 atMost) const {
    QNetworkRequest request = RequestTo(address);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    if (!token.isEmpty())
        request.setRawHeader("Authorization", "Bearer " + token);
    return SendOnce("POST", request, json, atMost);
}

HttpReply HttpClient::SendOnce(const QByteArray& method, QNetworkRequest request,
                               const QByteArray& bytes, qint64 atMost) const {
    OneWayBody body(bytes);
    QNetworkAccessManager network;
    request.setHeader(QNetworkRequest::ContentLengthHeader, bytes.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    return Await(*network.sendCustomRequest(request, method, &body), atMost);
}

HttpReply HttpClient::Await(QNetworkReply& reply, qint64 atMost) const {
    HttpReply received;
    const auto take = [&] {
        if (reply.isOpen())
            received.body += reply.readAll();
        if (received.body.size() > atMost)
            reply.abort();
    };
    const InputHold hold;
    QEventLoop waiting;
    reply.setReadBufferSize(atMost + 1);
    QTimer::singleShot(limit_, Qt::PreciseTimer, &reply, &QNetworkReply::abort);
    QObject::connect(&reply, &QNetworkReply::readyRead, &waiting, take);
    QObject::connect(&reply, &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    if (!reply.isFinished())
        waiting.exec();
    take();
    const qint64 length = received.body.size();
    if (!HasCome(reply) || length > atMost || !IsOfItsLength(reply, length))
        throw RuntimeError(ErrorNumber::ServiceFailed, reply.errorString());
    received.status = StatusOf(reply);
    return received;
}
