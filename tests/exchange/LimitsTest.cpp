#include "support/ExchangeTest.h"
#include "support/Until.h"

#include "exchange/Text.h"

/// The limits of clients, and the deletion of old data.
class LimitsTest : public ExchangeTest {
protected:
    void SetUp() override { AwaitFreshHour(); }
    int StatusOf(const std::string& path) { return Get(path)->status; }
    httplib::Result GetAs(const std::string& client, const std::string& path) {
        return Running().Client().Get(path, {{"X-Forwarded-For", client}});
    }
};
ON_BOTH_DATABASES(LimitsTest);

TEST_P(LimitsTest, RecipesOfAClientAreLimitedPerDay) {
    Start({{"recipes_per_client_day", "3"}});
    for (int i = 0; i < 3; ++i)
        Create();
    const auto refused = Post("/halvane/api/recipes", Soup());
    EXPECT_EQ(refused->status, 429);
    EXPECT_EQ(refused->get_header_value("Retry-After"), "86400");
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), 3);
}

TEST_P(LimitsTest, ABodyThatIsRefusedUsesUpTheLimitToo) {
    Start({{"recipes_per_client_day", "2"}});
    EXPECT_EQ(Post("/halvane/api/recipes", json::object())->status, 400);
    EXPECT_EQ(Post("/halvane/api/recipes", json::array())->status, 400);
    EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 429);
}

TEST_P(LimitsTest, RecipesOfAllClientsAreLimitedPerDay) {
    Start({{"recipes_per_day", "2"}});
    Create();
    Create();
    EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 429);
}

TEST_P(LimitsTest, ARefusalByOneLimitDoesNotCountForTheOthers) {
    Start({{"recipes_per_day", "1"}});
    Create();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 429);
    EXPECT_EQ(Count("SELECT Hits FROM counters WHERE Name LIKE 'recipe:%'"), 1);
}

TEST_P(LimitsTest, TheLimitsHoldAcrossServersAndRestarts) {
    Start({{"recipes_per_client_day", "3"}});
    const Server second({{"database", Database()}, {"recipes_per_client_day", "3"}});
    Create();
    EXPECT_EQ(
        second.Client().Post("/halvane/api/recipes", Soup().dump(), "application/json")->status,
        201);
    Restart({{"recipes_per_client_day", "3"}});
    Create();
    EXPECT_EQ(Post("/halvane/api/recipes", Soup())->status, 429);
    EXPECT_EQ(
        second.Client().Post("/halvane/api/recipes", Soup().dump(), "application/json")->status,
        429);
}

TEST_P(LimitsTest, GuessingIDsIsStoppedAtEveryAddress) {
    Start({{"misses_per_client_hour", "4"}});
    const auto id = std::to_string(Send());
    EXPECT_EQ(StatusOf("/halvane/api/recipes/11"), 404);
    EXPECT_EQ(StatusOf("/halvane/api/recipes/12/ingredients"), 404);
    EXPECT_EQ(StatusOf("/halvane/recipe.asp?recID=13"), 404);
    EXPECT_EQ(StatusOf("/halvane/sendrecipe.asp?recID=14"), 404);
    for (const auto* path : {"/halvane/api/recipes/15", "/halvane/api/recipes/16/ingredients",
                             "/halvane/recipe.asp?recID=17", "/halvane/sendrecipe.asp?recID=18"})
        EXPECT_EQ(StatusOf(path), 429) << path;
    EXPECT_EQ(StatusOf("/halvane/api/recipes/" + id), 429) << "a hit must not tell itself apart";
    EXPECT_EQ(StatusOf("/halvane/recipe.asp?recID=" + id), 429);
    EXPECT_EQ(StatusOf("/halvane/sendrecipe.asp?recID=" + id), 429);
}

TEST_P(LimitsTest, AfterTooManyGuessesAClientSendsNoRecipeOfOthers) {
    Start({{"misses_per_client_hour", "1"}, {"trusted_proxies", "127.0.0.1"}});
    const auto path = "/halvane/sendrecipe.asp?recID=" + std::to_string(Create().id);
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/sendrecipe.asp?recID=14")->status, 404);
    EXPECT_EQ(GetAs("192.0.2.1", path)->status, 429);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM documents"), 0);
    EXPECT_EQ(GetAs("192.0.2.2", path)->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM documents"), 1);
}

TEST_P(LimitsTest, ClientsBehindATrustedProxyAreCountedSeparately) {
    Start({{"misses_per_client_hour", "1"}, {"trusted_proxies", "127.0.0.1"}});
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/api/recipes/11")->status, 404);
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/api/recipes/12")->status, 429);
    EXPECT_EQ(GetAs("192.0.2.2", "/halvane/api/recipes/13")->status, 404);
    EXPECT_EQ(GetAs("203.0.113.9, 192.0.2.1", "/halvane/api/recipes/14")->status, 429);
    EXPECT_EQ(GetAs("::ffff:192.0.2.1", "/halvane/api/recipes/15")->status, 429);
    EXPECT_EQ(GetAs("::ffff:192.0.2.3", "/halvane/api/recipes/16")->status, 404);
}

TEST_P(LimitsTest, AHouseholdWithItsManyAddressesIsOneClient) {
    Start({{"misses_per_client_hour", "1"}, {"trusted_proxies", "127.0.0.1"}});
    EXPECT_EQ(GetAs("2001:db8:1:2::1", "/halvane/api/recipes/11")->status, 404);
    EXPECT_EQ(GetAs("2001:db8:1:2:ffff::9", "/halvane/api/recipes/12")->status, 429);
    EXPECT_EQ(GetAs("2001:db8:1:3::1", "/halvane/api/recipes/13")->status, 404);
}

TEST_P(LimitsTest, XForwardedForOfAClientIsIgnored) {
    Start({{"misses_per_client_hour", "1"}});
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/api/recipes/11")->status, 404);
    EXPECT_EQ(GetAs("192.0.2.2", "/halvane/api/recipes/12")->status, 429);
}

/// The pattern has {n} where each request has another number. The last of so many is the first that
/// is refused, while each address, household or smaller network has missed once only.
struct WideNetwork {
    const char* pattern;
    int allowed;
    const char* outside;
};

TEST_P(LimitsTest, AWiderNetworkMayMissFourTimesAsOftenAsTheNextNarrowerOne) {
    Start({{"misses_per_client_hour", "1"}, {"trusted_proxies", "127.0.0.1"}});
    constexpr WideNetwork networks[] = {
        {"2001:db8:1:1{n}::1", 4, "2001:db8:1:200::1"}, // a /56
        {"2001:db8:2:{n}00::1", 16, "2001:db8:3::1"},   // a /48
        {"2001:db9:{n}::1", 64, "2001:dba::1"},         // a /32
        {"198.51.100.{n}", 4, "198.51.101.1"},          // a /24
        {"198.18.{n}.1", 16, "198.19.1.1"},             // a /16
    };
    for (const auto& network : networks) {
        const auto statusOf = [&](int n) {
            std::string client = network.pattern;
            exchange::ReplaceAll(client, "{n}", std::to_string(n));
            return GetAs(client, "/halvane/api/recipes/11")->status;
        };
        for (int n = 0; n < network.allowed; ++n)
            EXPECT_EQ(statusOf(n + 10), 404) << network.pattern << " " << n;
        EXPECT_EQ(statusOf(network.allowed + 10), 429) << network.pattern;
        EXPECT_EQ(GetAs(network.outside, "/halvane/api/recipes/11")->status, 404);
    }
}

TEST_P(LimitsTest, OneNetworkCreatesATenthOfTheDaysRecipesAtMost) {
    Start({{"recipes_per_client_day", "2"},
           {"recipes_per_day", "30"},
           {"trusted_proxies", "127.0.0.1"}});
    const auto statusAs = [&](const std::string& client) {
        return Running()
            .Client()
            .Post("/halvane/api/recipes", {{"X-Forwarded-For", client}}, Soup().dump(),
                  "application/json")
            ->status;
    };
    for (const auto* client : {"192.0.2.1", "192.0.2.2", "192.0.2.3"})
        EXPECT_EQ(statusAs(client), 201) << client;
    EXPECT_EQ(statusAs("192.0.2.4"), 429) << "a /24 has 3 of 30";
    EXPECT_EQ(statusAs("192.0.3.1"), 429) << "so has the /16 around it";
    EXPECT_EQ(statusAs("192.1.2.1"), 201);
}

TEST_P(LimitsTest, WhenAllMissTooOftenKnownIDsAreStillServed) {
    Start({{"misses_per_client_hour", "20"},
           {"misses_per_hour", "3"},
           {"trusted_proxies", "127.0.0.1"}});
    const auto known = "/halvane/api/recipes/" + std::to_string(Send());
    for (const auto* client : {"192.0.2.1", "192.1.2.1", "192.2.2.1", "192.3.2.1"})
        EXPECT_EQ(GetAs(client, "/halvane/api/recipes/11")->status, 404) << client;
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/api/recipes/12")->status, 404) << "the second of two";
    EXPECT_EQ(GetAs("192.0.2.1", "/halvane/api/recipes/13")->status, 429) << "a tenth of 20";
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(GetAs("192.5.2.1", known)->status, 200);
    EXPECT_EQ(GetAs("192.1.2.1", known)->status, 200) << "one mistake hinders nobody";
}

TEST_P(LimitsTest, SearchesAndPagesHaveTheirOwnLimitsWithRetryAfter) {
    Start({{"searches_per_client_minute", "2"},
           {"pages_per_client_minute", "3"},
           {"trusted_proxies", "127.0.0.1"}});
    const auto search = "/halvane/community.asp?q=soup";
    const auto page = "/halvane/community.asp";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(GetAs("192.0.2.1", search)->status, 200);
    const auto refused = GetAs("192.0.2.1", search);
    EXPECT_EQ(refused->status, 429);
    EXPECT_EQ(refused->get_header_value("Retry-After"), "60");
    EXPECT_EQ(refused->get_header_value("Content-Type"), "text/html; charset=utf-8");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(GetAs("192.0.2.1", page)->status, 200) << i;
    EXPECT_EQ(GetAs("192.0.2.1", page)->status, 429);
    EXPECT_EQ(GetAs("192.0.2.2", search)->status, 200) << "another client has its own number";
}

TEST_P(LimitsTest, AfterTooManyGuessesRetryAfterIsAnHour) {
    Start({{"misses_per_client_hour", "1"}});
    Get("/halvane/api/recipes/11");
    for (const auto* path : {"/halvane/api/recipes/12", "/halvane/sendrecipe.asp?recID=12"})
        EXPECT_EQ(Get(path)->get_header_value("Retry-After"), "3600") << path;
}

TEST_P(LimitsTest, CountersDoNotIdentifyClients) {
    Start();
    Get("/halvane/api/recipes/11");
    EXPECT_EQ(Count("SELECT COUNT(*) FROM counters"), 4) << "three networks, and all";
    EXPECT_EQ(Count("SELECT COUNT(*) FROM counters WHERE Name LIKE '%127.%'"), 0);
}

TEST_P(LimitsTest, UnfinishedRecipesAreSweptAfterADayAndSentOnesStay) {
    Start();
    const auto old = Create();
    Add(old, json::array({Row(1)}));
    const int sent = Send();
    const auto young = Create();
    EXPECT_EQ(Running().End(), 0);
    exchange::Connection connection(Database());
    const int ids[] = {old.id, sent};
    for (const int id : ids)
        connection.Change(
            "UPDATE recipes SET CreatedAt = CreatedAt - 90000000000 WHERE RecipeID = :id",
            soci::use(id));
    Start();
    EXPECT_TRUE(Until([&] { return Count("SELECT COUNT(*) FROM recipes") == 2; }));
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 1);
    EXPECT_EQ(StatusOf("/halvane/api/recipes/" + std::to_string(sent)), 200);
    Add(young, json::array({Row(1)}));
}

TEST_P(LimitsTest, AddressesAreForgottenAfterTheirTime) {
    Start();
    Send();
    EXPECT_EQ(Running().End(), 0);
    exchange::Connection(Database()).Once("UPDATE recipes SET SentAt = SentAt - 2600000000000");
    Start();
    EXPECT_TRUE(Until([&] { return Cell("SELECT EMAILTO FROM recipes").empty(); }));
    EXPECT_EQ(Cell("SELECT EMAILFROM FROM recipes"), "");
}
