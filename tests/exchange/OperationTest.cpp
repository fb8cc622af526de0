#include "support/ExchangeTest.h"
#include "support/RawClient.h"
#include "support/Until.h"

#include "exchange/SchemaSteps.h"

#include "exchange/Config.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <regex>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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
    /// Reads the log until it names the port, and no further.
    static int PortReadFrom(int log) {
        std::string text;
        for (char c = 0; Server::PortIn(text) == 0 && ::read(log, &c, 1) == 1;)
            text += c;
        return Server::PortIn(text);
    }
    Folder folder_;
};
ON_BOTH_DATABASES(OperationTest);

TEST_P(OperationTest, HealthAndReadyAnswer) {
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

TEST_P(OperationTest, ALogThatNobodyReadsDoesNotKeepItFromEnding) {
    const std::string log = folder_ / "unread";
    ASSERT_EQ(::mkfifo(log.c_str(), 0600), 0);
    const int reader = ::open(log.c_str(), O_RDWR);
    Process server({Server::Program(), "--port", "0", "--database", Database(), "--secret",
                    "a secret of a test, long enough for it"},
                   {}, log);
    httplib::Client client("127.0.0.1", PortReadFrom(reader));
    client.set_keep_alive(true);
    client.set_read_timeout(Soon);
    for (int i = 0; i < 3000; ++i)
        ASSERT_TRUE(client.Get("/health"));
    const auto begin = std::chrono::steady_clock::now();
    server.Signal(SIGTERM);
    EXPECT_EQ(server.Wait(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, Soon);
    ::close(reader);
}

TEST_P(OperationTest, TheCommandLineOverridesTheEnvironmentAndThatTheFile) {
    WriteFile(folder_ / "exchange.conf", "mail_relay = ftp://file\nport = 0");
    const std::vector<std::string> check = {"--config", folder_ / "exchange.conf", "--check"};
    EXPECT_NE(RunServer(check).output.find("mail_relay must begin"), std::string::npos);
    ::setenv("HALVANE_EXCHANGE_MAIL_RELAY", "smtp://relay", 1);
    EXPECT_NE(RunServer(check).output.find("mail_from must be"), std::string::npos);
    auto with = check;
    with.insert(with.end(), {"--mail_relay", "", "--database", Database()});
    EXPECT_EQ(RunServer(with).output.find("mail"), std::string::npos);
    ::unsetenv("HALVANE_EXCHANGE_MAIL_RELAY");
}

TEST_P(OperationTest, HelpNamesEverySetting) {
    const auto help = RunServer({"--help"});
    EXPECT_EQ(help.code, 0);
    for (const auto& name : exchange::Config::Names())
        EXPECT_NE(help.output.find("--" + name), std::string::npos) << name;
}

TEST_P(OperationTest, ServersThatStartTogetherOnANewDatabaseMakeItOnce) {
    std::vector<std::future<std::unique_ptr<Server>>> starting;
    for (int i = 0; i < 4; ++i)
        starting.push_back(std::async(std::launch::async, [database = Database()] {
            return std::make_unique<Server>(Server::Settings{{"database", database}});
        }));
    for (auto& server : starting)
        EXPECT_EQ(server.get()->Client().Get("/ready")->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM schema_steps"),
              static_cast<long long>(exchange::SchemaSteps::All().size()));
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
    for (const auto* table : {"recipes", "ingredients", "documents", "listing", "search"})
        EXPECT_EQ(Count("SELECT COUNT(*) FROM " + std::string(table)), 0) << table;
}

TEST_P(OperationTest, AnInvalidConfigurationIsRefusedWithAReason) {
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
          Case{"mail_relay = file:///etc/passwd", "mail_relay must begin with"},
          Case{"trusted_proxies = 127.0.0.1, localhost", "network addresses, not \"localhost\""},
          Case{"database =", "database must be"},
          Case{"trusted_proxies = 10.0.0.0/33", "network addresses, not \"10.0.0.0/33\""}}) {
        const auto outcome = RunWith(line);
        EXPECT_EQ(outcome.code, 2) << line;
        EXPECT_NE(outcome.output.find(said), std::string::npos) << outcome.output;
    }
    EXPECT_EQ(RunServer({"--config", "/nowhere"}).code, 2);
    EXPECT_EQ(RunServer({"--config", "/"}).code, 2);
    EXPECT_EQ(RunServer({"--what"}).code, 2);
}

TEST_P(OperationTest, AnUnreachableDatabaseIsNotAConfigurationError) {
    const auto outcome = RunWith(OnServer() ? "database = postgresql:host=/nowhere"
                                            : "database = /nowhere/exchange.db");
    EXPECT_EQ(outcome.code, 3);
    EXPECT_FALSE(outcome.output.empty());
}

TEST_P(OperationTest, AFailureIsLoggedWithoutTheTextsThatItWasAbout) {
    Start();
    Send();
    exchange::Connection(Database())
        .Once(OnServer()
                  ? "ALTER TABLE recipes ADD CONSTRAINT none CHECK (RecipeYield <> 4) NOT VALID"
                  : "CREATE TRIGGER none BEFORE INSERT ON recipes WHEN NEW.RecipeYield = 4"
                    " BEGIN SELECT RAISE(ABORT, 'none'); END");
    EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 503);
    EXPECT_EQ(Running().End(), 0);
    const auto log = Running().Log();
    EXPECT_NE(log.find("\"failure\""), std::string::npos) << log;
    EXPECT_NE(log.find("none"), std::string::npos) << log;
    for (const auto* text : {"anna", "bert", "Lentil", "Rinse"})
        EXPECT_EQ(log.find(text), std::string::npos) << log;
}

TEST_P(OperationTest, ARunningReplyIsFinishedBeforeTheEnd) {
    Start();
    auto recipe = Soup();
    recipe["Instructions"] = std::string(100'000, 'x');
    const auto path = "/halvane/api/recipes/" + std::to_string(Send(recipe));
    RawClient slow(Running().Port());
    constexpr int requests = 200;
    for (int i = 0; i < requests; ++i)
        slow.Send("GET " + path + " HTTP/1.1\r\nHost: x\r\n\r\n");
    const auto begun = [&] { return Running().Log().find("{id}\"") != std::string::npos; };
    EXPECT_TRUE(Until(begun));
    auto ending = std::async(std::launch::async, [&] { return Running().End(); });
    const auto arrived = slow.ReadToEnd();
    EXPECT_EQ(ending.get(), 0);
    const auto last = arrived.rfind("HTTP/1.1 200");
    ASSERT_NE(last, std::string::npos);
    EXPECT_EQ(json::parse(RawClient::Body(arrived.substr(last)))["RecipeName"], "Lentil soup");
}

TEST_P(OperationTest, ItRaisesTheLimitOfDescriptorsForItsConnections) {
    rlimit usual{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit few{200, usual.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &few);
    Start({{"connections_per_client", "500"}, {"request_seconds", "300"}});
    ::setrlimit(RLIMIT_NOFILE, &usual);
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 300; ++i)
        clients.push_back(std::make_unique<RawClient>(Running().Port()));
    for (auto& client : clients) {
        client->Send("GET /health HTTP/1.1\r\nHost: x\r\n\r\n");
        EXPECT_EQ(RawClient::Status(client->ReadReply()), 200);
    }
    EXPECT_EQ(Running().End(), 0);
}

TEST_P(OperationTest, MoreConnectionsThanTheSystemAllowsAreRefusedAtTheStart) {
    std::string output;
    const auto command = "ulimit -n 500 && HALVANE_EXCHANGE_DATABASE='" + Database() +
                         "' HALVANE_EXCHANGE_PORT=0 exec " + Server::Program();
    EXPECT_EQ(Process::Run({"bash", "-c", command}, &output), 2);
    EXPECT_NE(output.find("descriptors, but the system allows only 500"), std::string::npos)
        << output;
}

TEST_P(OperationTest, TheFilesOfSQLiteAreOnlyForTheirOwner) {
    if (OnServer())
        return;
    Start();
    Send();
    using std::filesystem::perms;
    for (const auto* suffix : {"", "-wal"}) {
        const auto mode = std::filesystem::status(Database() + suffix).permissions();
        EXPECT_EQ(mode & (perms::group_all | perms::others_all), perms::none) << suffix;
    }
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

TEST_P(OperationTest, ABackupIsRestoredWithTheCommandsOfTheHandbook) {
    Start();
    const auto id = std::to_string(Send());
    std::string output;
    std::string restored = folder_ / "restored.db";
    if (OnServer()) {
        restored = Cluster::One().CreateDatabase();
        const auto at = " -h " + Cluster::One().Socket() + " -U postgres ";
        const auto dump = folder_ / "backup";
        EXPECT_EQ(
            Process::Run(
                {"sh", "-c", "pg_dump" + at + "-Fc -f " + dump + " " + Cluster::NameOf(Database())},
                &output),
            0)
            << output;
        EXPECT_EQ(Process::Run({"sh", "-c",
                                "pg_restore" + at + "--exit-on-error -d " +
                                    Cluster::NameOf(restored) + " " + dump},
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

/// Only PostgreSQL can be stopped and started again, and is used by other programs.
class LostDatabaseTest : public ExchangeTest {};
INSTANTIATE_TEST_SUITE_P(OperationTest, LostDatabaseTest, testing::Values("postgresql"));

TEST_P(LostDatabaseTest, AServerThatLostItsDatabaseSaysSoAndRecovers) {
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

TEST_P(LostDatabaseTest, AHangingTransactionHoldsUpOthersForSecondsOnly) {
    EXPECT_EQ(Cell("SELECT current_setting('lock_timeout')"), "10s");
    EXPECT_EQ(Cell("SELECT current_setting('idle_in_transaction_session_timeout')"), "30s");
}

TEST_P(LostDatabaseTest, ReadsGoOnWhileAnotherProgramHoldsACounter) {
    Start({{"misses_per_client_hour", "1000"}});
    const auto path = "/halvane/api/recipes/" + std::to_string(Send());
    exchange::Connection holder(Database());
    exchange::Transaction held(holder);
    holder.Change("UPDATE counters SET Hits = Hits + 1");
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(Get(path)->status, 200);
}
