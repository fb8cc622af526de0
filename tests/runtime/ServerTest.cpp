#include "runtime/Server.h"

#include <gtest/gtest.h>

class ServerTest : public ::testing::Test {
protected:
    void TearDown() override {
        Server::SetAddress({});
        Server::SetSupport({});
    }
};

TEST_F(ServerTest, IsWhatTheBuildWasTold) {
    EXPECT_EQ(Server::Address(), HALVANE_SERVER);
    EXPECT_EQ(Server::Support(), HALVANE_SUPPORT);
}

TEST_F(ServerTest, AnotherAddressCountsUntilItIsTakenBack) {
    Server::SetAddress("https://exchange.example:8443");
    Server::SetSupport("help@exchange.example");
    EXPECT_EQ(Server::Address(), "https://exchange.example:8443");
    EXPECT_EQ(Server::Support(), "help@exchange.example");
    Server::SetAddress({});
    EXPECT_EQ(Server::Address(), HALVANE_SERVER);
}

TEST_F(ServerTest, TheAddressHasNoSlashAtItsEnd) {
    for (const char* address : {"http://exchange.example/", "http://exchange.example//"}) {
        Server::SetAddress(address);
        EXPECT_EQ(Server::Address(), "http://exchange.example");
    }
}
