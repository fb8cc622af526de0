#include "recipes/net/HttpClient.h"

#include "support/Failure.h"
#include "support/ScriptedServer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {
constexpr qint64 Plenty = 1024 * 1024;
const QByteArray Chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
using std::chrono::milliseconds;
} // namespace

class HttpClientTest : public testing::Test {
protected:
    ScriptedServer server;
    HttpClient http;

    int Failure(const QString& path) {
        return FailureOf([&] { http.Get(server.Address() + path, Plenty); });
    }
};

TEST_F(HttpClientTest, ACallMayTakeThirtySeconds) {
    EXPECT_EQ(http.Limit(), std::chrono::seconds(30));
}

TEST_F(HttpClientTest, GivesStatusAndBodyWhateverTheStatus) {
    for (const int status : {200, 201, 204, 302, 400, 403, 404, 409, 413, 429, 500, 503, 599}) {
        const QByteArray body = status == 204 ? QByteArray() : QByteArray::number(status);
        server.Tell("GET /page", status, body);
        const HttpReply reply = http.Get(server.Address() + "/page", Plenty);
        EXPECT_EQ(reply.status, status);
        EXPECT_EQ(reply.body, body);
    }
}

TEST_F(HttpClientTest, FollowsNoRedirection) {
    server.Tell("GET /page", ScriptedServer::Raw("HTTP/1.1 302 Found\r\nLocation: /other\r\n"
                                                 "Content-Length: 0\r\n\r\n"));
    EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).status, 302);
    EXPECT_EQ(server.Lines(), QStringList("GET /page"));
}

TEST_F(HttpClientTest, PostsJsonWithItsLengthAndToken) {
    server.Tell("POST /page", 201, "{}");
    EXPECT_EQ(http.PostJson(server.Address() + "/page", R"({"a":1})", "secret", Plenty).status,
              201);
    const ScriptedServer::Request& request = server.Requests().first();
    EXPECT_EQ(request.body, R"({"a":1})");
    EXPECT_EQ(request.headers["content-type"], "application/json");
    EXPECT_EQ(request.headers["content-length"], "7");
    EXPECT_EQ(request.headers["authorization"], "Bearer secret");
    EXPECT_EQ(request.headers["accept-encoding"], "identity");
}

TEST_F(HttpClientTest, SendsNoAuthorizationWithoutAToken) {
    server.Tell("POST /page", 201, "{}");
    http.PostJson(server.Address() + "/page", "{}", "", Plenty);
    EXPECT_FALSE(server.Requests().first().headers.contains("authorization"));
}

TEST_F(HttpClientTest, ABodyIsNotSentAgainIfTheReplyIsLost) {
    server.Tell("POST /page", ScriptedServer::Raw(""));
    EXPECT_NE(FailureOf([&] {
                  http.PostJson(server.Address() + "/page", QByteArray(100000, 'x'), "t", Plenty);
              }),
              0);
    EXPECT_EQ(server.Requests().size(), 1);
}

TEST_F(HttpClientTest, AQuestionThatChangesSomethingIsNotAskedAgainIfTheReplyIsLost) {
    for (const char* cut : {"", "HTTP/1.1 2", "HTTP/1.1 200 OK\r\n"}) {
        server.Tell("GET /page", ScriptedServer::Raw(cut));
        EXPECT_EQ(FailureOf([&] { http.GetOnce(server.Address() + "/page", Plenty); }),
                  ErrorNumber::ServiceFailed)
            << cut;
    }
    EXPECT_EQ(server.Requests().size(), 3);
}

TEST_F(HttpClientTest, AReplyOfTheGreatestLengthIsAcceptedAndOneByteMoreIsNot) {
    server.Tell("GET /page", 200, QByteArray(1000, 'x'));
    EXPECT_EQ(http.Get(server.Address() + "/page", 1000).body.size(), 1000);
    EXPECT_NE(FailureOf([&] { http.Get(server.Address() + "/page", 999); }), 0);
}

TEST_F(HttpClientTest, AFloodIsNotReadToItsEnd) {
    server.Tell("GET /page", server.Flood(100 * 1024 * 1024));
    EXPECT_EQ(Failure("/page"), ErrorNumber::ServiceFailed);
    EXPECT_LT(server.Flooded(), 50 * 1024 * 1024);
}

TEST_F(HttpClientTest, WithoutContentLengthTheReplyEndsWithTheConnection) {
    for (const char* head : {"HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.0 200 OK\r\n\r\n",
                             "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n"}) {
        server.Tell("GET /page", ScriptedServer::Raw(head + QByteArray("Sent.")));
        EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "Sent.") << head;
        server.Tell("GET /page", ScriptedServer::Raw(head));
        EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "") << head;
    }
}

/// The reply and its end come at once, so the network layer may notice the end first. Many calls
/// meet both orders.
TEST_F(HttpClientTest, AReplyThatEndsWithTheConnectionIsTakenByACallThatIsSentOnce) {
    server.Tell("GET /page", ScriptedServer::Raw("HTTP/1.1 200 OK\r\n\r\nSent."));
    for (int call = 1; call <= 100; ++call) {
        const HttpReply reply = http.GetOnce(server.Address() + "/page", Plenty);
        EXPECT_EQ(reply.status, 200);
        EXPECT_EQ(reply.body, "Sent.");
        EXPECT_EQ(server.Lines().size(), call);
    }
}

TEST_F(HttpClientTest, AChunkedReplyIsAccepted) {
    server.Tell("GET /page", ScriptedServer::Raw(Chunked + "2\r\nSe\r\n3\r\nnt.\r\n0\r\n\r\n"));
    EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "Sent.");
}

/// Whether the network layer notices the missing part depends on how the bytes arrive.
TEST_F(HttpClientTest, AChunkThatIsCutShortGivesNoMoreThanCame) {
    server.Tell("GET /page", ScriptedServer::Raw(Chunked + "5\r\nSen"));
    try {
        EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "Sen");
    } catch (const RuntimeError& failure) {
        EXPECT_EQ(failure.Number(), ErrorNumber::ServiceFailed);
    }
}

TEST_F(HttpClientTest, AConnectionThatEndsWithinTheHeadFails) {
    for (const char* head :
         {"", "HTTP/1.1", "HTTP/1.1 200 OK\r\n", "HTTP/1.1 200 OK\r\nServer: a\r\n"}) {
        server.Tell("GET /page", ScriptedServer::Raw(head));
        EXPECT_EQ(Failure("/page"), ErrorNumber::ServiceFailed) << head;
    }
}

TEST_F(HttpClientTest, AReplyWithoutContentLengthIsNotReadBeyondTheGreatestLength) {
    server.Tell("GET /page",
                ScriptedServer::Raw("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(1001, 'x')));
    EXPECT_EQ(http.Get(server.Address() + "/page", 1001).body.size(), 1001);
    EXPECT_NE(FailureOf([&] { http.Get(server.Address() + "/page", 1000); }), 0);
}

TEST_F(HttpClientTest, ABodyShorterThanItsLengthFails) {
    server.Tell("GET /page",
                ScriptedServer::Raw("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nSent."));
    EXPECT_EQ(Failure("/page"), ErrorNumber::ServiceFailed);
}

TEST_F(HttpClientTest, TheLimitHoldsForSilenceAndForATrickle) {
    http.SetLimit(milliseconds(150));
    server.Tell("GET /silence", ScriptedServer::Silence());
    server.Tell("GET /trickle", ScriptedServer::Trickle());
    for (const char* page : {"/silence", "/trickle"}) {
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(Failure(page), ErrorNumber::ServiceFailed) << page;
        EXPECT_GE(clock.elapsed(), 145) << page;
        EXPECT_LT(clock.elapsed(), 10000) << page;
    }
}

TEST_F(HttpClientTest, FailsIfNobodyListens) {
    http.SetLimit(std::chrono::seconds(5)); // where names are looked up slowly
    QString address;
    {
        const ScriptedServer gone;
        address = gone.Address();
    }
    for (const QString& nowhere : {address, QString("http://"), QString("nonsense"), QString(),
                                   QString("ftp://127.0.0.1"), QString("http://no.such.invalid")})
        EXPECT_EQ(FailureOf([&] { http.Get(nowhere + "/page", Plenty); }),
                  ErrorNumber::ServiceFailed)
            << nowhere.toStdString();
}

TEST_F(HttpClientTest, IsUsableAgainAfterAFailure) {
    server.Tell("GET /page", ScriptedServer::Raw("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nh"));
    EXPECT_NE(Failure("/page"), 0);
    server.Tell("GET /page", 200, "there");
    EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "there");
}

// The interface while it waits

TEST_F(HttpClientTest, RepaintsButDropsInputWhileItWaits) {
    QLineEdit field;
    field.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&field));
    bool typed = false;
    server.Tell("GET /page", [&](QTcpSocket& socket) {
        QTest::keyClicks(&field, "abc");
        QTest::mouseClick(&field, Qt::LeftButton);
        QTest::keyClick(field.windowHandle(), Qt::Key_A);
        typed = true;
        field.close();
        ScriptedServer::Raw("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok")(socket);
    });
    EXPECT_EQ(http.Get(server.Address() + "/page", Plenty).body, "ok");
    EXPECT_TRUE(typed);
    EXPECT_TRUE(field.isVisible());
    QApplication::processEvents();
    EXPECT_EQ(field.text(), "");
    QTest::keyClicks(&field, "after");
    EXPECT_EQ(field.text(), "after");
}

TEST_F(HttpClientTest, FailsIfTheProgramEndsDuringTheCall) {
    server.Tell("GET /page", [](QTcpSocket&) {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    });
    int failure = 0;
    QTimer::singleShot(0, &server, [&] { failure = Failure("/page"); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(failure, ErrorNumber::ServiceFailed);
}

// Certificates

class HttpsTest : public testing::Test {
protected:
    /// Self-signed, for that name or address.
    void MakeCertificate(const QString& subject) {
        const QString key = folder.filePath("key.pem");
        const QString certificate = folder.filePath("certificate.pem");
        const QStringList arguments{"req",    "-x509",     "-newkey",
                                    "ec",     "-pkeyopt",  "ec_paramgen_curve:P-256",
                                    "-nodes", "-subj",     "/CN=it",
                                    "-out",   certificate, "-keyout",
                                    key,      "-addext",   "subjectAltName=" + subject};
        QProcess openssl;
        openssl.start("openssl", arguments);
        ASSERT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0)
            << openssl.readAllStandardError().toStdString();
        tls.setLocalCertificate(QSslCertificate::fromPath(certificate).value(0));
        QFile file(key);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        tls.setPrivateKey(QSslKey(&file, QSsl::Ec));
        ASSERT_FALSE(tls.localCertificate().isNull());
        ASSERT_FALSE(tls.privateKey().isNull());
    }
    void Trust() {
        QSslConfiguration trusting = before;
        trusting.addCaCertificate(tls.localCertificate());
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    void TearDown() override { QSslConfiguration::setDefaultConfiguration(before); }

    HttpReply Ask() {
        ScriptedServer server(tls);
        server.Tell("GET /page", 200, "secret");
        HttpClient http;
        return http.Get(server.Address() + "/page", Plenty);
    }

    QTemporaryDir folder;
    QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    QSslConfiguration tls;
};

TEST_F(HttpsTest, ATrustedCertificateIsAccepted) {
    MakeCertificate("IP:127.0.0.1");
    Trust();
    EXPECT_EQ(Ask().body, "secret");
}

TEST_F(HttpsTest, ACertificateThatNobodyTrustsFails) {
    MakeCertificate("IP:127.0.0.1");
    EXPECT_EQ(FailureOf([&] { Ask(); }), ErrorNumber::ServiceFailed);
}

TEST_F(HttpsTest, ATrustedCertificateForAnotherNameFails) {
    MakeCertificate("DNS:recipes.example.org");
    Trust();
    EXPECT_EQ(FailureOf([&] { Ask(); }), ErrorNumber::ServiceFailed);
}
