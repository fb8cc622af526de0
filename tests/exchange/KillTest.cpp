#include "support/ExchangeTest.h"
#include "support/Proxy.h"
#include "support/Until.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <random>
#include <set>
#include <thread>

/// After a failure under load, everything that the server acknowledged is there, and nothing is
/// there by half.
class UnderLoadTest : public ExchangeTest {
protected:
    /// HALVANE_KILLS sets how many.
    static int Kills() {
        const char* wanted = std::getenv("HALVANE_KILLS");
        return wanted ? std::atoi(wanted) : 30;
    }

    /// What the server acknowledged to one sender.
    struct Sender {
        std::set<int> sent;
        std::set<int> withRows;
    };

    static Server::Settings Unlimited() {
        return {{"recipes_per_client_day", "1000000000"}, {"recipes_per_day", "1000000000"}};
    }

    bool Acknowledges(const httplib::Result& reply, int status) {
        const bool acknowledged = reply && reply->status == status;
        acknowledged_ += acknowledged;
        return acknowledged;
    }

    /// Makes a recipe, adds its rows and sends it, as far as the server acknowledges.
    void SendOne(httplib::Client& client, Sender& sender) {
        static const auto recipe = Soup().dump();
        static const auto rows = json{{"rows", json::array({Row(1), Row(2), Row(3)})}}.dump();
        const auto created = client.Post("/halvane/api/recipes", recipe, "application/json");
        if (!Acknowledges(created, 201))
            return;
        const auto body = json::parse(created->body);
        const int id = body["RecipeID"];
        const auto path = "/halvane/api/recipes/" + std::to_string(id) + "/ingredients";
        const httplib::Headers creator{
            {"Authorization", "Bearer " + body["token"].get<std::string>()}};
        if (!Acknowledges(client.Post(path, creator, rows, "application/json"), 201))
            return;
        sender.withRows.insert(id);
        if (!Acknowledges(client.Get("/halvane/sendrecipe.asp?recID=" + std::to_string(id)), 200))
            return;
        sender.sent.insert(id);
    }

    /// Sends one recipe after the other until the work is done.
    void DoUnderLoad(const std::function<void()>& work) {
        std::atomic<bool> done = false;
        std::vector<std::thread> threads;
        for (auto& sender : senders_)
            threads.emplace_back([&, client = Running().Client()]() mutable {
                while (!done)
                    SendOne(client, sender);
            });
        work();
        done = true;
        for (auto& thread : threads)
            thread.join();
    }

    /// Waits until the server has acknowledged so many more requests.
    void AwaitAcknowledged(int more) {
        const int wanted = acknowledged_ + more;
        EXPECT_TRUE(Until([&] { return acknowledged_ >= wanted; }));
    }

    void ExpectAllAcknowledgedThere() {
        exchange::Connection connection(Database());
        size_t sent = 0;
        const auto countOf = [&](const char* statement, int id) {
            int count = 0;
            connection.First(statement, soci::use(id), soci::into(count));
            return count;
        };
        for (const auto& sender : senders_) {
            sent += sender.sent.size();
            for (const int id : sender.withRows)
                EXPECT_EQ(countOf("SELECT COUNT(*) FROM ingredients WHERE RecipeID = :id", id), 3);
            for (const int id : sender.sent)
                EXPECT_EQ(countOf("SELECT COUNT(*) FROM documents WHERE RecipeID = :id", id), 1);
        }
        EXPECT_GT(sent, 0U);
    }

    void ExpectNothingHalf() {
        const auto documents = Count("SELECT COUNT(*) FROM documents");
        EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE SentAt > 0"), documents);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM listing"), documents);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM search"), documents);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"),
                  Count("SELECT SUM(IngredientCount) FROM recipes"));
        if (!OnServer()) {
            EXPECT_EQ(Cell("PRAGMA integrity_check"), "ok");
        }
    }

    std::mt19937 random_{4711};

private:
    Sender senders_[2];
    std::atomic<int> acknowledged_ = 0;
};

class KillTest : public UnderLoadTest {};
ON_BOTH_DATABASES(KillTest);

TEST_P(KillTest, KillsOfTheServerLoseNothingAcknowledged) {
    for (int i = 0; i < Kills(); ++i) {
        auto& server = Start(Unlimited());
        DoUnderLoad([&] {
            AwaitAcknowledged(static_cast<int>(1 + random_() % 20));
            server.TheProcess().Signal(SIGKILL);
            server.TheProcess().Wait();
        });
    }
    ExpectAllAcknowledgedThere();
    ExpectNothingHalf();
}

/// Only PostgreSQL is a server of its own, which can fail alone.
class DatabaseKillTest : public UnderLoadTest {
protected:
    /// Does harm to the database again and again while the server is used.
    void Harm(const std::function<void()>& harm, int times) {
        DoUnderLoad([&] {
            for (int i = 0; i < times; ++i) {
                AwaitAcknowledged(static_cast<int>(1 + random_() % 20));
                harm();
            }
            AwaitAcknowledged(20);
        });
        EXPECT_EQ(Running().End(), 0);
        ExpectAllAcknowledgedThere();
        ExpectNothingHalf();
    }
};
INSTANTIATE_TEST_SUITE_P(KillTest, DatabaseKillTest, testing::Values("postgresql"));

TEST_P(DatabaseKillTest, StopsAndStartsOfTheDatabaseLoseNothingAcknowledged) {
    Start(Unlimited());
    Harm(
        [] {
            Cluster::One().Stop();
            Cluster::One().Start();
        },
        Kills() / 6);
}

TEST_P(DatabaseKillTest, KillsOfTheDatabaseLoseNothingAcknowledged) {
    Start(Unlimited());
    Harm(
        [] {
            Cluster::One().Kill();
            Cluster::One().Start();
        },
        Kills() / 6);
}

TEST_P(DatabaseKillTest, BrokenLinesToTheDatabaseLoseNothingAcknowledged) {
    Proxy proxy(Cluster::One().SocketFile());
    auto settings = Unlimited();
    settings["database"] = Cluster::Through(proxy.Port(), Database());
    Start(settings);
    Harm([&] { proxy.Break(); }, Kills());
}

TEST_P(DatabaseKillTest, ATransactionWhoseLineBreaksLeavesNothing) {
    Start();
    Proxy proxy(Cluster::One().SocketFile());
    exchange::Connection connection(Cluster::Through(proxy.Port(), Database()));
    try {
        exchange::Transaction transaction(connection);
        connection.Change("INSERT INTO counters (Name, Slot, Hits) VALUES ('x', 1, 1)");
        proxy.Break();
        transaction.Commit();
        ADD_FAILURE() << "the commit has not failed";
    } catch (const std::exception&) {
        EXPECT_TRUE(connection.Failed());
    }
    EXPECT_EQ(Count("SELECT COUNT(*) FROM counters"), 0);
}
