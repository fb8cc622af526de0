#include "network/Connections.h"

#include <QHostInfo>
#include <QLocalSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

#include <mutex>
#include <set>
#include <string>

#include <gtest/gtest.h>

/// What the process tries while the test runs.
class ConnectionsTest : public testing::Test {
protected:
    void SetUp() override {
        Connections::Watch([this](const std::string& to) {
            const std::scoped_lock lock(turn);
            heard.insert(to);
        });
    }
    void TearDown() override { Connections::Watch({}); }

    std::mutex turn;
    std::set<std::string> heard; ///< a connection may be tried more than once
};

TEST_F(ConnectionsTest, AConnectionOfTheLibraryIsHeard) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.serverPort());
    EXPECT_TRUE(socket.waitForConnected(30'000));
    EXPECT_EQ(heard, (std::set{"127.0.0.1:" + std::to_string(server.serverPort())}));
}

TEST_F(ConnectionsTest, ALookUpIsHeardAlsoInAnotherThread) {
    QHostInfo::fromName("no.such.invalid");
    QTcpSocket socket;
    socket.connectToHost("neither.such.invalid", 80);
    socket.waitForConnected(30'000);
    EXPECT_EQ(heard, (std::set<std::string>{"no.such.invalid", "neither.such.invalid"}));
}

TEST_F(ConnectionsTest, AFileOfTheSameMachineIsNoConnection) {
    QLocalSocket socket;
    socket.connectToServer("no such socket");
    EXPECT_FALSE(socket.waitForConnected(100));
    EXPECT_TRUE(heard.empty());
}
