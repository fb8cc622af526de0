#include "support/ExchangeTest.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <random>
#include <set>
#include <thread>

/// Kills the server under load, again and again: whatever it acknowledged is there afterwards, and
/// what it did not is there as a whole or not at all.
class KillTest : public ExchangeTest {
protected:
    /// HALVANE_KILLS sets how many.
    static int Kills() {
        const char* wanted = std::getenv("HALVANE_KILLS");
        return wanted ? std::atoi(wanted) : 30;
    }

    /// What one sender was told, up to the last reply that reached it.
    struct Sender {
        std::set<int> sent;
        std::set<int> withRows;
    };

    void SendUntilItDies(int port, Sender& sender) {
        httplib::Client client("127.0.0.1", port);
        client.set_keep_alive(true);
        client.set_tcp_nodelay(true);
        const auto recipe = Soup().dump();
        const auto rows = json{{"rows", json::array({Row(1), Row(2), Row(3)})}}.dump();
        for (;;) {
            const auto created = client.Post("/halvane/api/recipes", recipe, "application/json");
            if (!created || created->status != 201)
                return;
            const auto body = json::parse(created->body);
            const int id = body["RecipeID"];
            const auto path = "/halvane/api/recipes/" + std::to_string(id) + "/ingredients";
            const auto added =
                client.Post(path, {{"Authorization", "Bearer " + body["token"].get<std::string>()}},
                            rows, "application/json");
            if (!added || added->status != 201)
                return;
            sender.withRows.insert(id);
            const auto reply = client.Get("/halvane/sendrecipe.asp?recID=" + std::to_string(id));
            if (!reply || reply->status != 200)
                return;
            sender.sent.insert(id);
        }
    }

    static constexpr size_t Enough = 30;
    static size_t Sent(const Sender (&senders)[2]) {
        return senders[0].sent.size() + senders[1].sent.size();
    }

    void RunAndKill(Sender (&senders)[2], int milliseconds) {
        auto& server =
            Start({{"recipes_per_client_day", "1000000"}, {"recipes_per_day", "1000000"}});
        std::vector<std::thread> threads;
        for (auto& sender : senders)
            threads.emplace_back([&] { SendUntilItDies(server.Port(), sender); });
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        server.TheProcess().Signal(SIGKILL);
        server.TheProcess().Wait();
        for (auto& thread : threads)
            thread.join();
    }
};
ON_BOTH_DATABASES(KillTest);

TEST_P(KillTest, KillsUnderLoadLoseNothingAcknowledged) {
    Sender senders[2];
    std::mt19937 random(4711);
    // A busy machine acknowledges few sends between two kills.
    for (int i = 0; i < Kills() || (i < 20 * Kills() && Sent(senders) <= Enough); ++i)
        RunAndKill(senders, 20 + static_cast<int>(random() % 60));
    exchange::Connection connection(Database());
    for (const auto& sender : senders) {
        for (const int id : sender.withRows) {
            int rows = 0;
            connection.First("SELECT COUNT(*) FROM ingredients WHERE RecipeID = :id", soci::use(id),
                             soci::into(rows));
            EXPECT_EQ(rows, 3) << id;
        }
        for (const int id : sender.sent) {
            int documents = 0;
            connection.First("SELECT COUNT(*) FROM documents WHERE RecipeID = :id", soci::use(id),
                             soci::into(documents));
            EXPECT_EQ(documents, 1) << id;
        }
    }
    EXPECT_GT(Sent(senders), Enough);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE SentAt > 0"),
              Count("SELECT COUNT(*) FROM documents"));
    EXPECT_EQ(Count("SELECT COUNT(*) FROM listing"), Count("SELECT COUNT(*) FROM documents"));
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"),
              Count("SELECT SUM(IngredientCount) FROM recipes"));
    if (!OnServer()) {
        EXPECT_EQ(Cell("PRAGMA integrity_check"), "ok");
    }
}
