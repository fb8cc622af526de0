#include "support/ExchangeTest.h"
#include "support/Proxy.h"
#include "support/Until.h"

#include <chrono>
#include <csignal>
#include <future>
#include <thread>

namespace {
using Clock = std::chrono::steady_clock;
} // namespace

/// A database that hangs holds up readers and writers for a limited time. Then all is well again.
class DeadlineTest : public ExchangeTest {
protected:
    int StatusOf(const std::string& path) {
        const auto reply = Get(path);
        return reply ? reply->status : 0;
    }
    /// How long a request takes; it must be answered with 503.
    Clock::duration TimeToFail(const std::string& path) {
        const auto begin = Clock::now();
        EXPECT_EQ(StatusOf(path), 503) << path;
        return Clock::now() - begin;
    }
    void ExpectWellAgain(const std::string& path) {
        EXPECT_TRUE(Until([&] { return StatusOf(path) == 200; }));
        EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 201);
    }
};

/// On PostgreSQL, which can stop answering in many ways.
class ServerDeadlineTest : public DeadlineTest {
protected:
    void ExpectEndsSoon() {
        const auto begin = Clock::now();
        EXPECT_EQ(Running().End(), 0);
        EXPECT_LT(Clock::now() - begin, Soon);
    }
};
INSTANTIATE_TEST_SUITE_P(DeadlineTest, ServerDeadlineTest, testing::Values("postgresql"));

TEST_P(ServerDeadlineTest, AFrozenDatabaseIsGivenUpInSecondsAndUsedAgain) {
    Start();
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    EXPECT_EQ(StatusOf(path), 200);
    Cluster::One().Freeze();
    EXPECT_LT(TimeToFail(path), Soon);
    const auto begin = Clock::now();
    const auto sentence = Get("/halvane/sendrecipe.asp?recID=7");
    EXPECT_LT(Clock::now() - begin, Soon);
    EXPECT_EQ(sentence->status, 503);
    EXPECT_EQ(sentence->body.front(), 'T');
    Cluster::One().Thaw();
    ExpectWellAgain(path);
}

TEST_P(ServerDeadlineTest, ASignalEndsTheServerWhoseDatabaseIsFrozen) {
    Start();
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    Cluster::One().Freeze();
    std::vector<std::future<int>> waiting;
    for (int i = 0; i < 4; ++i)
        waiting.push_back(std::async(std::launch::async, [&] { return StatusOf(path); }));
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    ExpectEndsSoon();
    Cluster::One().Thaw();
}

TEST_P(ServerDeadlineTest, ADatabaseThatWasKilledAndRestartedIsUsedAgain) {
    Start();
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    Cluster::One().Kill();
    EXPECT_LT(TimeToFail(path), Soon);
    Cluster::One().Start();
    ExpectWellAgain(path);
}

TEST_P(ServerDeadlineTest, ASilentConnectionToTheDatabaseIsNoticedInSeconds) {
    Proxy proxy(Cluster::One().SocketFile());
    Start({{"database", Cluster::Through(proxy.Port(), Database())}});
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    proxy.Cut();
    EXPECT_LT(TimeToFail(path), Soon);
    proxy.Mend();
    ExpectWellAgain(path);
    proxy.Cut();
    ExpectEndsSoon();
}

TEST_P(ServerDeadlineTest, ALongReadIsEndedAndTheNextOneIsServed) {
    exchange::Connection connection(Database());
    std::string nothing;
    const auto begin = Clock::now();
    EXPECT_THROW(connection.First("SELECT CAST(pg_sleep(60) AS TEXT)", soci::into(nothing)),
                 std::exception);
    EXPECT_LT(Clock::now() - begin, Soon);
    EXPECT_EQ(Cell("SELECT 'x'"), "x");
}

/// On SQLite, where one writes at a time.
class FileDeadlineTest : public DeadlineTest {};
INSTANTIATE_TEST_SUITE_P(DeadlineTest, FileDeadlineTest, testing::Values("sqlite"));

TEST_P(FileDeadlineTest, ReadersGoOnWhileWritersWaitForAnotherProgram) {
    Start({{"misses_per_client_hour", "100000"}});
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    exchange::Connection holder(Database());
    std::vector<std::future<int>> writers;
    Clock::duration longest{};
    {
        exchange::Transaction held(holder);
        holder.Change("UPDATE settings SET Value = Value");
        for (int i = 0; i < 16; ++i)
            writers.push_back(std::async(std::launch::async, [this] {
                return Running()
                    .Client()
                    .Post("/halvane/api/recipes", Soup().dump(), "application/json")
                    ->status;
            }));
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        for (int i = 0; i < 50; ++i) {
            const auto begin = Clock::now();
            EXPECT_EQ(StatusOf(path), 200);
            longest = std::max(longest, Clock::now() - begin);
        }
    }
    EXPECT_LT(longest, std::chrono::seconds(5)) << "a writer waits for ten";
    for (auto& writer : writers) {
        const int status = writer.get();
        EXPECT_TRUE(status == 201 || status == 503) << status;
    }
    EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 201);
}

TEST_P(FileDeadlineTest, ALongReadIsEnded) {
    exchange::Connection connection(Database());
    long long count = 0;
    const auto begin = Clock::now();
    EXPECT_THROW(connection.First("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                                  " SELECT COUNT(*) FROM n",
                                  soci::into(count)),
                 std::exception);
    EXPECT_LT(Clock::now() - begin, Soon);
}
