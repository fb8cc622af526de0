#include "support/ExchangeTest.h"
#include "support/RawClient.h"
#include "support/Until.h"

#include <csignal>
#include <future>
#include <regex>

/// Starting, watching, ending, backing up and sharing a database.
class OperationTest : public ExchangeTest {
protected:
    struct Outcome {
        int code;
        std::string output;
    };
    Outcome RunServer(std::vector<std::string> arguments) {
        Outcome outcome{};
        arguments.insert(arguments.begin(), Server::Program());
        outcome.code = Process::Run(arguments, &outcome.output);
        return outcome;
    }
    Outcome RunWith(const std::string& config) {
        WriteFile(folder_ / "exchange.conf", config);
        return RunServer({"--config", folder_ / "exchange.conf", "--check"});
    }
    static std::string NameOf(const std::string& database) {
        return database.substr(database.rfind('=') + 1);
    }
    Folder folder_;
};
ON_BOTH_DATABASES(OperationTest);

TEST_P(OperationTest, HealthAndReadinessAreTold) {
    Start();
    EXPECT_EQ(Text("/health"), "{\"healthy\":true}");
    EXPECT_EQ(Text("/ready"), "{\"ready\":true}");
}

TEST_P(OperationTest, ASignalEndsItCleanly) {
    Start();
    EXPECT_EQ(Running().End(), 0);
    EXPECT_NE(Running().Log().find("\"event\":\"ended\""), std::string::npos);
}

TEST_P(OperationTest, ASignalWaitsForTheRequestsThatAreBeingAnswered) {
    Start({{"recipes_per_client_day", "100000"}});
    std::atomic<bool> stopped = false;
    auto sending = std::async(std::launch::async, [&] {
        std::vector<int> sent;
        auto client = Running().Client();
        for (;;) {
            const auto reply =
                client.Post("/halvane/api/recipes", Soup().dump(), "application/json");
            if (!reply)
                return sent;
            if (reply->status == 201)
                sent.push_back(json::parse(reply->body)["RecipeID"]);
        }
    });
    EXPECT_TRUE(Until([&] { return Count("SELECT COUNT(*) FROM recipes") > 10; }));
    EXPECT_EQ(Running().End(), 0);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), static_cast<long long>(sending.get().size()));
}

TEST_P(OperationTest, EachLogLineIsAnObject) {
    Start();
    Send();
    Get("/nothing");
    EXPECT_EQ(Running().End(), 0);
    std::istringstream log(Running().Log());
    int lines = 0;
    for (std::string line; std::getline(log, line); ++lines) {
        const auto entry = json::parse(line);
        for (const auto* name : {"time", "level", "event"})
            EXPECT_TRUE(entry.contains(name)) << line;
    }
    EXPECT_GE(lines, 6);
}

TEST_P(OperationTest, ServersThatStartTogetherOnANewDatabaseMakeItOnce) {
    std::vector<std::future<std::unique_ptr<Server>>> starting;
    for (int i = 0; i < 4; ++i)
        starting.push_back(std::async(std::launch::async, [database = Database()] {
            return std::make_unique<Server>(Server::Settings{{"database", database}});
        }));
    for (auto& server : starting)
        EXPECT_EQ(server.get()->Client().Get("/ready")->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM schema_steps"), 1);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM settings"), 1);
}

TEST_P(OperationTest, SeveralServersShareOneDatabase) {
    Start();
    const Server second({{"database", Database()}});
    const auto created = Create();
    const auto path = "/halvane/api/recipes/" + std::to_string(created.id);
    auto other = second.Client();
    EXPECT_EQ(other
                  .Post(path + "/ingredients", {{"Authorization", "Bearer " + created.token}},
                        json{{"rows", json::array({Row(1)})}}.dump(), "application/json")
                  ->status,
              201);
    EXPECT_EQ(other.Get("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id))->status,
              200);
    EXPECT_EQ(Get(path)->status, 200);
    EXPECT_NE(Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id)).find("already"),
              std::string::npos);
}

TEST_P(OperationTest, ARemovedRecipeIsGoneFromEveryPlace) {
    Start();
    const auto id = std::to_string(Send());
    ::setenv("HALVANE_EXCHANGE_DATABASE", Database().c_str(), 1);
    EXPECT_EQ(RunServer({"--remove", id}).output, "The recipe is removed.\n");
    EXPECT_EQ(RunServer({"--remove", id}).code, 1);
    EXPECT_EQ(RunServer({"--check"}).code, 0);
    ::unsetenv("HALVANE_EXCHANGE_DATABASE");
    EXPECT_EQ(Get("/halvane/api/recipes/" + id)->status, 404);
    for (const auto* table : {"recipes", "ingredients", "documents", "listing", "words"})
        EXPECT_EQ(Count("SELECT COUNT(*) FROM " + std::string(table)), 0) << table;
}

TEST_P(OperationTest, AnUnusableConfigurationIsNamedAndRefused) {
    struct Case {
        const char* line;
        const char* said;
    };
    for (const auto& [line, said] :
         {Case{"prot = 80", "there is no setting \"prot\""},
          Case{"port = eighty", "port must be a whole number from 0 to 65535, not \"eighty\""},
          Case{"port = 70000", "port must be"}, Case{"log_requests = 1", "must be yes or no"},
          Case{"just text", "no \"=\" in the line"},
          Case{"mail_tls = maybe", "must be one of required, tried, none"},
          Case{"mail_relay = smtp://x", "mail_from must be"},
          Case{"mail_relay = file:///etc/passwd", "mail_relay must begin with"}}) {
        const auto outcome = RunWith(line);
        EXPECT_EQ(outcome.code, 2) << line;
        EXPECT_NE(outcome.output.find(said), std::string::npos) << outcome.output;
    }
    EXPECT_EQ(RunServer({"--config", "/nowhere"}).code, 2);
    EXPECT_EQ(RunServer({"--what"}).code, 2);
}

TEST_P(OperationTest, TheDeliveredConfigurationNamesEverySettingWithItsDefault) {
    auto text = ReadFile(std::string(HALVANE_SOURCE_DIR) + "/exchange/halvane-exchange.conf");
    text = std::regex_replace(text, std::regex("\n# ([a-z_]+ =)"), "\n$1");
    text = std::regex_replace(text, std::regex("database = postgresql[^\n]*"), "");
    text =
        std::regex_replace(text, std::regex("database = exchange.db"), "database = " + Database());
    Start();
    EXPECT_EQ(RunWith(text).code, 0) << RunWith(text).output;
}

TEST_P(OperationTest, ABackupIsRestoredByTheLinesOfTheHandbook) {
    Start();
    const auto id = std::to_string(Send());
    std::string output;
    std::string restored = folder_ / "restored.db";
    if (OnServer()) {
        restored = Cluster::One().CreateDatabase();
        const auto at = " -h " + Cluster::One().Socket() + " -U postgres ";
        const auto dump = folder_ / "backup";
        EXPECT_EQ(
            Process::Run({"sh", "-c", "pg_dump" + at + "-Fc -f " + dump + " " + NameOf(Database())},
                         &output),
            0)
            << output;
        EXPECT_EQ(Process::Run(
                      {"sh", "-c",
                       "pg_restore" + at + "--exit-on-error -d " + NameOf(restored) + " " + dump},
                      &output),
                  0)
            << output;
    } else {
        EXPECT_EQ(Process::Run({"sqlite3", Database(), "VACUUM INTO '" + restored + "'"}, &output),
                  0)
            << output;
    }
    const auto recipe = Text("/halvane/api/recipes/" + id);
    Start({{"database", restored}});
    EXPECT_EQ(Text("/halvane/api/recipes/" + id), recipe);
    EXPECT_NE(Text("/halvane/community.asp?q=lentil").find(id), std::string::npos);
}

/// PostgreSQL alone can go away and come back.
class LostDatabaseTest : public ExchangeTest {};
INSTANTIATE_TEST_SUITE_P(OperationTest, LostDatabaseTest, testing::Values("postgresql"));

TEST_P(LostDatabaseTest, AServerWhoseDatabaseWentAwaySaysSoAndRecovers) {
    Start();
    const auto id = std::to_string(Send());
    Cluster::One().Stop();
    EXPECT_EQ(Get("/health")->status, 200);
    EXPECT_EQ(Get("/ready")->status, 503);
    EXPECT_EQ(Get("/halvane/api/recipes/" + id)->status, 503);
    const auto sentence = Get("/halvane/sendrecipe.asp?recID=" + id);
    EXPECT_EQ(sentence->status, 503);
    EXPECT_EQ(sentence->body, "The service is not available just now.");
    Cluster::One().Start();
    EXPECT_TRUE(Until([&] { return Get("/ready")->status == 200; }));
    EXPECT_EQ(Get("/halvane/api/recipes/" + id)->status, 200);
}
