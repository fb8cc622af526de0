#include "support/ExchangeTest.h"
#include "support/RawClient.h"
#include "support/Until.h"

#include <atomic>
#include <csignal>
#include <future>

/// Clients that are slow, silent or gone delay only themselves.
class SlowClientsTest : public ExchangeTest {
protected:
    static constexpr const char* Half = "GET /health HTTP/1.1\r\nHost: x\r\nX-Slow: ";
    void ExpectPromptReplies() {
        const auto begin = std::chrono::steady_clock::now();
        for (int i = 0; i < 50; ++i)
            EXPECT_EQ(Get("/ready")->status, 200);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, Soon);
    }
};
ON_BOTH_DATABASES(SlowClientsTest);

TEST_P(SlowClientsTest, HundredsOfHalfRequestsLeaveTheOthersServed) {
    Start({{"connections_per_client", "500"}, {"workers", "2"}, {"request_seconds", "60"}});
    std::vector<std::unique_ptr<RawClient>> slow;
    for (int i = 0; i < 300; ++i) {
        slow.push_back(std::make_unique<RawClient>(Running().Port()));
        slow.back()->Send(i % 2 ? Half : "");
    }
    ExpectPromptReplies();
}

TEST_P(SlowClientsTest, ARequestThatArrivesTooSlowlyIsCutOff) {
    Start({{"request_seconds", "1"}});
    RawClient drip(Running().Port());
    drip.Send(Half);
    EXPECT_TRUE(Until([&] { return !drip.Send("x") || drip.IsClosed(50); }));
}

TEST_P(SlowClientsTest, ABodyThatNeverComesIsCutOff) {
    Start({{"request_seconds", "1"}});
    RawClient endless(Running().Port());
    endless.Send("POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\nContent-Length: 1000\r\n\r\n{");
    EXPECT_TRUE(endless.IsClosed());
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), 0);
}

TEST_P(SlowClientsTest, ASilentConnectionIsClosed) {
    Start({{"request_seconds", "1"}, {"idle_seconds", "1"}});
    RawClient silent(Running().Port());
    RawClient served(Running().Port());
    served.Send("GET /health HTTP/1.1\r\nHost: x\r\n\r\n");
    EXPECT_TRUE(silent.IsClosed());
    EXPECT_TRUE(served.IsClosed());
}

TEST_P(SlowClientsTest, AClientThatDoesNotReadItsReplyHoldsUpNobody) {
    Start({{"workers", "2"}, {"request_seconds", "60"}});
    Send();
    std::vector<std::unique_ptr<RawClient>> deaf;
    for (int i = 0; i < 20; ++i) {
        deaf.push_back(std::make_unique<RawClient>(Running().Port()));
        for (int k = 0; k < 100; ++k)
            deaf.back()->Send("GET /halvane/community.asp HTTP/1.1\r\nHost: x\r\n\r\n");
    }
    ExpectPromptReplies();
}

TEST_P(SlowClientsTest, AClientThatAsksWithoutEndTakesTurnsWithTheOthers) {
    Start({{"workers", "1"}, {"log_requests", "no"}});
    std::string many;
    for (int i = 0; i < 20'000; ++i)
        many += "GET /health HTTP/1.1\r\nHost: x\r\n\r\n";
    RawClient greedy(Running().Port());
    auto asking = std::async(std::launch::async, [&] {
        while (greedy.Send(many))
            continue;
    });
    auto reading = std::async(std::launch::async, [&] { return greedy.ReadToEnd().size(); });
    ExpectPromptReplies();
    Running().TheProcess().Signal(SIGKILL);
    asking.get();
    EXPECT_GT(reading.get(), 100'000U);
}

TEST_P(SlowClientsTest, ConnectionsOfAClientAreLimited) {
    Start({{"connections_per_client", "5"}, {"idle_seconds", "300"}});
    std::vector<std::unique_ptr<RawClient>> many;
    for (int i = 0; i < 5; ++i) {
        many.push_back(std::make_unique<RawClient>(Running().Port()));
        many.back()->Send("GET /health HTTP/1.1\r\nHost: x\r\n\r\n");
        EXPECT_EQ(RawClient::Status(many.back()->ReadReply()), 200);
    }
    EXPECT_EQ(RawClient::Status(RawClient::Talk(Running().Port(), "")), 503);
    many.clear();
    EXPECT_TRUE(Until([&] {
        const auto reply = Get("/health");
        return reply && reply->status == 200;
    }));
}

TEST_P(SlowClientsTest, NewClientsAreServedWhileHundredsOfBodiesArrive) {
    Start();
    std::atomic<bool> arriving = true;
    auto asking = std::async(std::launch::async, [&] {
        int answered = 0;
        for (; arriving; ++answered)
            EXPECT_EQ(RawClient::Status(RawClient::Ask(Running().Port(),
                                                       "GET /health HTTP/1.1\r\nHost: x\r\n\r\n")),
                      200);
        return answered;
    });
    std::vector<std::unique_ptr<RawClient>> senders;
    for (int i = 0; i < 800; ++i) {
        const auto from = "127.9." + std::to_string(i % 16) + ".1";
        senders.push_back(std::make_unique<RawClient>(Running().Port(), from));
        senders.back()->Send("POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\n"
                             "Content-Type: application/json\r\nContent-Length: 1048576\r\n\r\n" +
                             std::string(1 << 19, ' '));
    }
    arriving = false;
    EXPECT_GT(asking.get(), 20);
}

TEST_P(SlowClientsTest, RequestsInOnePieceAreAnsweredInTheirOrder) {
    Start();
    const auto reply = RawClient::Talk(
        Running().Port(), "GET /health HTTP/1.1\r\nHost: x\r\n\r\n"
                          "GET /nothing HTTP/1.1\r\nHost: x\r\n\r\n"
                          "GET /ready HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n");
    const auto health = reply.find("healthy");
    const auto nothing = reply.find("404 Not Found");
    const auto ready = reply.find("ready\":true");
    EXPECT_LT(health, nothing);
    EXPECT_LT(nothing, ready);
    EXPECT_NE(ready, std::string::npos);
}

TEST_P(SlowClientsTest, ARequestThatArrivesByteByByteIsAnswered) {
    Start();
    RawClient client(Running().Port());
    for (const char c : std::string("GET /health HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n"))
        client.Send({&c, 1});
    EXPECT_EQ(RawClient::Status(client.ReadToEnd()), 200);
}
