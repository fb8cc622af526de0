#include "support/ExchangeTest.h"
#include "support/RawClient.h"
#include "support/Until.h"

#include <filesystem>
#include <fstream>

#ifdef __SANITIZE_THREAD__
constexpr int ShadowShare = 6; ///< what the sanitizer notes of the memory is resident, too
#else
constexpr int ShadowShare = 1;
#endif

/// Which connections are accepted, and what is refused before it reaches a handler.
class FrontTest : public ExchangeTest {
protected:
    using Headers = httplib::Headers;

    static std::string GetOf(const std::string& path) {
        return "GET " + path + " HTTP/1.1\r\nHost: x\r\n\r\n";
    }
    int PostTyped(const std::string& path, const char* type) {
        return Running().Client().Post(path, Soup().dump(), type)->status;
    }
    long ResidentMegabytes() {
        std::ifstream status("/proc/" + std::to_string(Running().TheProcess().ID()) + "/status");
        for (std::string word; status >> word;)
            if (long kilobytes = 0; word == "VmRSS:" && status >> kilobytes)
                return kilobytes / 1024;
        return 0;
    }
    static std::vector<std::unique_ptr<RawClient>> Served(int port, int count,
                                                          const std::string& from) {
        std::vector<std::unique_ptr<RawClient>> clients;
        for (int i = 0; i < count; ++i) {
            clients.push_back(std::make_unique<RawClient>(port, from));
            clients.back()->Send(GetOf("/health"));
            EXPECT_EQ(RawClient::Status(clients.back()->ReadReply()), 200) << from;
        }
        return clients;
    }
    static std::string TypeOf(const std::string& reply) {
        constexpr std::string_view name = "Content-Type: ";
        const auto at = reply.find(name) + name.size();
        return reply.substr(at, reply.find_first_of(";\r", at) - at);
    }
};
ON_BOTH_DATABASES(FrontTest);

TEST_P(FrontTest, APageOfAnotherSiteChangesNothing) {
    Start();
    const auto created = Create();
    const auto path = "/halvane/sendrecipe.asp?recID=" + std::to_string(created.id);
    const Headers foreign = {{"Sec-Fetch-Site", "cross-site"}};
    auto client = Running().Client();
    const auto sent = client.Get(path, foreign);
    EXPECT_EQ(sent->status, 403);
    EXPECT_EQ(sent->get_header_value("Content-Type"), "text/plain; charset=utf-8");
    EXPECT_EQ(
        client.Post("/halvane/api/recipes", foreign, Soup().dump(), "application/json")->status,
        403);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE SentAt <> 0"), 0);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), 1);
    EXPECT_EQ(client.Get("/halvane/community.asp", foreign)->status, 200) << "links lead here";
    for (const auto* own : {"same-origin", "none", "same-site"})
        EXPECT_EQ(client.Get(path, {{"Sec-Fetch-Site", own}})->status, 200) << own;
}

TEST_P(FrontTest, ABodyMustBeJson) {
    Start();
    for (const auto* type : {"text/plain", "application/x-www-form-urlencoded",
                             "multipart/form-data; boundary=b", "application/jsonx", "json"})
        EXPECT_EQ(PostTyped("/halvane/api/recipes", type), 415) << type;
    EXPECT_EQ(PostTyped("/halvane/api/recipes", "Application/JSON; charset=utf-8"), 201);
    EXPECT_EQ(RawClient::Status(RawClient::Ask(
                  Running().Port(),
                  "POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\nContent-Length: 2\r\n\r\n{}")),
              415);
}

TEST_P(FrontTest, AFullServerAnswersInTheKindThatWasAskedFor) {
    Start({{"connections_per_client", "2"}, {"idle_seconds", "300"}});
    const auto held = Served(Running().Port(), 2, "127.0.0.1");
    struct Kind {
        const char* path;
        const char* type;
    };
    for (const auto& [path, type] :
         {Kind{"/halvane/sendrecipe.asp?recID=5", "text/plain"},
          Kind{"/halvane/api/recipes/5", "application/json"}, Kind{"/index.asp", "text/html"}}) {
        const auto reply = RawClient::Talk(Running().Port(), GetOf(path));
        EXPECT_EQ(RawClient::Status(reply), 503) << path;
        EXPECT_EQ(TypeOf(reply), type) << path;
        EXPECT_FALSE(path[9] == 's' && RawClient::Body(reply).starts_with("<"));
    }
}

TEST_P(FrontTest, EveryRefusalHasTheStrictHeaders) {
    Start({{"request_seconds", "1"}});
    const std::string head = "POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\n";
    for (const auto& request :
         {std::string("nonsense\r\n\r\n"), head + "Host: y\r\n\r\n",
          head + "Transfer-Encoding: chunked\r\n\r\n", head + "Content-Length: 2000000\r\n\r\n",
          head + "Expect: 100-continue\r\n\r\n", head + "Content-Length: 9\r\n\r\n{",
          GetOf("/" + std::string(9000, 'a')), std::string(17000, 'a'), GetOf("/nothing")}) {
        const auto reply = RawClient::Ask(Running().Port(), request);
        EXPECT_GE(RawClient::Status(reply), 400) << request.substr(0, 80);
        for (const auto* header :
             {"Content-Security-Policy: default-src 'none'", "X-Content-Type-Options: nosniff",
              "X-Frame-Options: DENY", "Referrer-Policy: no-referrer"})
            EXPECT_NE(reply.find(header), std::string::npos) << header << "\n" << reply;
    }
}

TEST_P(FrontTest, ALateHeadGets408) {
    Start({{"request_seconds", "1"}});
    EXPECT_EQ(RawClient::Status(RawClient::Talk(Running().Port(), "GET / HT")), 408);
}

TEST_P(FrontTest, AReplyToAHeadRequestHasTheLengthAndNoBody) {
    Start();
    const auto reply = RawClient::Talk(
        Running().Port(), "HEAD /index.asp HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n");
    EXPECT_EQ(RawClient::Status(reply), 200);
    EXPECT_EQ(RawClient::Body(reply), "");
    EXPECT_EQ(reply.find("Content-Length: 0\r"), std::string::npos);
}

TEST_P(FrontTest, AClientThatHasFinishedSendingStillGetsItsReply) {
    Start();
    RawClient client(Running().Port());
    client.Send(GetOf("/ready"));
    client.FinishSending();
    EXPECT_EQ(RawClient::Status(client.ReadToEnd()), 200);
}

TEST_P(FrontTest, SixteenAddressesCannotTakeAllConnections) {
    Start({{"connections", "64"}, {"connections_per_client", "4"}});
    std::vector<std::vector<std::unique_ptr<RawClient>>> crowd;
    for (int i = 1; i <= 16; ++i)
        crowd.push_back(Served(Running().Port(), 4, "127." + std::to_string(i) + ".0.1"));
    const auto others = Served(Running().Port(), 3, "127.200.0.1");
    EXPECT_EQ(others.size(), 3U);
}

TEST_P(FrontTest, AnIdleConnectionIsClosedBeforeABusyOne) {
    Start({{"connections", "3"}, {"connections_per_client", "3"}});
    const auto waiting = Served(Running().Port(), 1, "127.1.0.1");
    RawClient first(Running().Port(), "127.1.0.1");
    RawClient second(Running().Port(), "127.1.0.1");
    for (const auto* sending : {&first, &second})
        sending->Send("GET /health HTTP/1.1\r\nHost:");
    const auto newcomer = Served(Running().Port(), 1, "127.2.0.1");
    EXPECT_TRUE(waiting.front()->IsClosed());
    first.Send(" x\r\n\r\n");
    EXPECT_EQ(RawClient::Status(first.ReadReply()), 200);
}

TEST_P(FrontTest, UnfinishedBodiesKeepToTheirMemoryLimit) {
    if (OnServer())
        return;
    Start({{"connections", "1100"}, {"connections_per_client", "1100"}});
    const std::string half(512 * 1024, 'x');
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 1000; ++i) {
        clients.push_back(std::make_unique<RawClient>(Running().Port()));
        clients.back()->Send("POST /halvane/api/recipes HTTP/1.1\r\nHost: x\r\nContent-Type: "
                             "application/json\r\nContent-Length: 1048576\r\n\r\n");
        clients.back()->Send(half);
    }
    EXPECT_LT(ResidentMegabytes(), 300 * ShadowShare);
    EXPECT_EQ(Get("/health")->status, 200);
}

TEST_P(FrontTest, TheSecretIsCreatedOnceAndOnlyForItsOwner) {
    const Folder folder;
    const std::string secret = folder / "secret";
    Start({{"secret", ""}, {"secret_file", secret}});
    const auto first = ReadFile(secret);
    EXPECT_EQ(first.size(), 65U);
    EXPECT_EQ(std::filesystem::status(secret).permissions(), std::filesystem::perms(0600));
    Restart({{"secret", ""}, {"secret_file", secret}});
    EXPECT_EQ(ReadFile(secret), first);
}

/// Only on PostgreSQL can a worker be made to wait.
class StuckWorkerTest : public FrontTest {
protected:
    /// After so long a statement that reads is ended.
    static constexpr std::chrono::seconds LongestRead{5};
};
INSTANTIATE_TEST_SUITE_P(FrontTest, StuckWorkerTest, testing::Values("postgresql"));

TEST_P(StuckWorkerTest, ReadyAnswersInTimeAndHealthAtOnceWhileWorkersAreStuck) {
    Start({{"workers", "2"}});
    exchange::Connection holder(Database());
    exchange::Transaction held(holder);
    holder.Once("LOCK TABLE schema_steps IN ACCESS EXCLUSIVE MODE");
    const auto begin = std::chrono::steady_clock::now();
    RawClient waiting(Running().Port());
    waiting.Send(GetOf("/ready"));
    EXPECT_EQ(Get("/health")->status, 200);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, LongestRead);
    const auto reply = waiting.ReadReply();
    EXPECT_EQ(RawClient::Status(reply), 503);
    EXPECT_EQ(TypeOf(reply), "application/json");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, LongestRead);
}
