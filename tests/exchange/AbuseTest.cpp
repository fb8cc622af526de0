#include "abuse/Abuse.h"
#include "support/ExchangeTest.h"
#include "support/RawClient.h"
#include "support/SmtpSink.h"

#include "exchange/Moderation.h"
#include "exchange/NoMail.h"
#include "exchange/Text.h"

#include <regex>

using namespace Raw;

/// Each case gets the expected reply and leaves the tables as expected. The next client is served.
class AbuseTest : public ExchangeTest {
protected:
    static constexpr const char* Secret = "the secret of the abuse tests, which is long enough";

    /// Generous limits, for the cases that are not about limits.
    static Server::Settings Settings(Server::Settings settings = {}) {
        settings.try_emplace("secret", Secret);
        settings.try_emplace("misses_per_client_hour", "1000000");
        settings.try_emplace("recipes_per_client_day", "1000000");
        settings.try_emplace("recipes_per_day", "1000000");
        return settings;
    }

    /// Makes the recipes that the cases name.
    void Prepare() {
        const auto open = Create();
        auto hidden = Soup();
        hidden["RecipeName"] = "Hidden";
        const int hiddenID = Send(hidden);
        exchange::Connection connection(Database());
        EXPECT_TRUE(exchange::Moderation(connection).Hide(hiddenID));
        const auto sent = std::to_string(Send());
        values_ = {{"{open}", std::to_string(open.id)},
                   {"{token}", open.token},
                   {"{hidden}", std::to_string(hiddenID)},
                   {"{sent}", sent},
                   {"{form}", FormToken(sent)},
                   {"{link}", exchange::NoMail(Secret).TokenFor("bert@example.org")}};
    }

    std::string FormToken(const std::string& id) {
        const auto page = Text("/halvane/recipe.asp?recID=" + id);
        std::smatch found;
        std::regex_search(page, found, std::regex("name=\"token\" value=\"([0-9a-f]+)\""));
        return found[1];
    }

    std::string Filled(std::string text) const {
        for (const auto& [name, value] : values_)
            exchange::ReplaceAll(text, name, value);
        return text;
    }

    /// A length is that of the request as it is sent.
    std::string FilledRequest(const std::string& text) const {
        const auto end = text.find("\r\n\r\n");
        if (end == std::string::npos || text.find('{') == std::string::npos)
            return text;
        const auto body = text.substr(end + 4);
        const auto length = "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n";
        auto head = text.substr(0, end + 4);
        exchange::ReplaceAll(head, length,
                             "\r\nContent-Length: " + std::to_string(Filled(body).size()) + "\r\n");
        return Filled(head) + Filled(body);
    }

    /// What the tables hold, in one text.
    std::string Data() {
        constexpr std::pair<const char*, const char*> numbers[] = {
            {"COUNT(*)", "recipes"},     {"SUM(IngredientCount)", "recipes"},
            {"SUM(SentAt)", "recipes"},  {"SUM(HiddenAt)", "recipes"},
            {"COUNT(*)", "ingredients"}, {"COUNT(*)", "documents"},
            {"COUNT(*)", "listing"},     {"COUNT(*)", "reports"},
            {"COUNT(*)", "no_mail"}};
        std::string sum;
        for (const auto& [number, table] : numbers)
            sum.append(sum.empty() ? "SELECT " : " || ' ' || ")
                .append("CAST((SELECT COALESCE(")
                .append(number)
                .append(", 0) FROM ")
                .append(table)
                .append(") AS TEXT)");
        if (!looker_)
            looker_ = std::make_unique<exchange::Connection>(Database());
        std::string data;
        looker_->First(sum, soci::into(data));
        return data;
    }

    std::string Ask(const std::string& request, int turn) {
        values_["{n}"] = std::to_string(turn);
        return RawClient::Ask(Running().Port(), FilledRequest(request));
    }

    void NoteNew(const std::string& reply) {
        std::smatch found;
        if (std::regex_search(reply, found, std::regex("\"RecipeID\":(\\d+)")))
            values_["{new}"] = found[1];
    }

    void Try(const Abuse& abuse) {
        SCOPED_TRACE(abuse.name.substr(0, 200));
        if (!abuse.before.empty())
            NoteNew(Ask(abuse.before, 0));
        const auto before = abuse.changes ? std::string() : Data();
        std::string reply;
        for (int turn = 1; turn <= abuse.times; ++turn)
            reply = Ask(abuse.request, turn);
        EXPECT_EQ(RawClient::Status(reply), abuse.status) << reply.substr(0, 300);
        EXPECT_NE(reply.find(abuse.said), std::string::npos) << reply;
        ExpectHarmless(reply);
        EXPECT_EQ(abuse.changes ? std::string() : Data(), before);
        EXPECT_EQ(abuse.absent.empty() ? 0 : Count(Filled(abuse.absent)), 0);
    }

    static void ExpectHarmless(const std::string& reply) {
        const auto body = RawClient::Body(reply);
        for (const auto* live : {"<script", "<img src=x", "root:x:", "syntax error"})
            EXPECT_EQ(body.find(live), std::string::npos) << body;
        EXPECT_EQ(reply.find("\nSet-Cookie"), std::string::npos);
    }

    void TryAll(const Abuses& abuses, size_t atLeast) {
        EXPECT_GE(abuses.size(), atLeast);
        for (const auto& abuse : abuses) {
            EXPECT_TRUE(!abuse.changes || !abuse.absent.empty()) << abuse.name;
            Try(abuse);
        }
        EXPECT_EQ(Get("/ready")->status, 200);
        EXPECT_EQ(Running().End(), 0);
    }

private:
    std::map<std::string, std::string> values_;
    std::unique_ptr<exchange::Connection> looker_;
};
ON_BOTH_DATABASES(AbuseTest);

TEST_P(AbuseTest, BrokenAndAmbiguousRequestsAreRefused) {
    Start(Settings());
    Prepare();
    TryAll(AbuseCases::Framing(), 80);
}

TEST_P(AbuseTest, InvalidBodiesOfRecipesAreRefused) {
    Start(Settings());
    TryAll(AbuseCases::Shapes(), 80);
}

TEST_P(AbuseTest, InvalidRowsAndTokensAreRefused) {
    Start(Settings());
    Prepare();
    TryAll(AbuseCases::Rows(), 30);
}

TEST_P(AbuseTest, HostileTextsInARecipeAreOnlyTexts) {
    Start(Settings());
    TryAll(AbuseCases::Texts(), 20);
}

TEST_P(AbuseTest, HostileParametersHaveNoEffect) {
    Start(Settings());
    Send();
    TryAll(AbuseCases::Parameters(), 200);
}

TEST_P(AbuseTest, NoMailIsSentToAnInvalidAddress) {
    const SmtpSink sink;
    Start(Settings({{"mail_relay", sink.Address()},
                    {"mail_from", "recipes@halvane.test"},
                    {"mail_tls", "none"},
                    {"public_url", "https://halvane.test"}}));
    TryAll(AbuseCases::MailAddresses(), 45);
    EXPECT_TRUE(sink.Mails().empty());
}

TEST_P(AbuseTest, AForeignPageChangesNothing) {
    Start(Settings());
    Prepare();
    TryAll(AbuseCases::CrossSite(), 19);
}

TEST_P(AbuseTest, ASearchIsWordsWithoutOperators) {
    Start(Settings({{"searches_per_client_minute", "1000000"}}));
    Send();
    TryAll(AbuseCases::Search(), 45);
}

TEST_P(AbuseTest, ReportsAndHiddenRecipesAreGuarded) {
    AwaitFreshHour();
    Start(Settings());
    Prepare();
    TryAll(AbuseCases::Moderation(), 20);
}

TEST_P(AbuseTest, ANetworkIsCountedOnceHoweverItsAddressesAreWritten) {
    AwaitFreshHour();
    Start(Settings({{"trusted_proxies", "127.0.0.1"}, {"misses_per_client_hour", "1"}}));
    TryAll(AbuseCases::Networks(), 30);
}

TEST_P(AbuseTest, EachRefusalHasAReason) {
    Start();
    const auto get = [](const std::string& path) { return Raw::Get(path); };
    for (const auto& request :
         {get("/" + std::string(9000, 'a')), get("/halvane/api/recipes/77"),
          get("/health").replace(0, 3, "BREW"), Raw::Post("/health", "").replace(0, 4, "ODD"),
          Raw::Post(Api, "x"), Raw::Post(Api, "{}", "Transfer-Encoding: chunked\r\n"),
          std::string("no request\r\n\r\n")}) {
        const auto reply = RawClient::Ask(Running().Port(), request);
        EXPECT_GE(RawClient::Status(reply), 400);
        const auto body = json::parse(RawClient::Body(reply), nullptr, false);
        EXPECT_TRUE(body.is_object() && body["reason"].is_string()) << reply;
    }
}

TEST_P(AbuseTest, ARefusedMethodGetsTheAllowedOnes) {
    Start();
    const auto of = [&](const std::string& path) {
        const auto reply = Running().Client().Delete(path);
        EXPECT_EQ(reply->status, 405) << path;
        return reply->get_header_value("Allow");
    };
    EXPECT_EQ(of("/halvane/api/recipes/5/ingredients"), "GET, HEAD, POST");
    EXPECT_EQ(of("/halvane/api/recipes"), "POST");
    EXPECT_EQ(of("/index.asp"), "GET, HEAD");
}

TEST_P(AbuseTest, MarkupInTextsIsEscaped) {
    Start();
    const std::string markup = "<b onclick='x'>\"&{{id}}{{{id}}}</b>";
    auto recipe = Soup();
    for (const auto* field : {"RecipeName", "ServingName", "Instructions"})
        recipe[field] = markup;
    auto row = Row(1, markup);
    row[33] = markup;
    const auto id = std::to_string(Send(recipe, json::array({row})));
    for (const auto& path :
         {"/halvane/recipe.asp?recID=" + id, std::string("/halvane/community.asp"),
          "/halvane/community.asp?q=" + Encoded(markup)}) {
        const auto page = Text(path);
        EXPECT_EQ(page.find("<b "), std::string::npos) << path;
        EXPECT_NE(page.find("&lt;b onclick=&apos;x&apos;&gt;&quot;&amp;{{id}}{{{id}}}&lt;/b&gt;"),
                  std::string::npos)
            << path;
    }
}

TEST_P(AbuseTest, EveryReplyHasTheStrictHeaders) {
    Start();
    const auto id = std::to_string(Send());
    for (const auto& path :
         {std::string("/"), std::string("/index.asp?ref=Halvane"),
          "/halvane/recipe.asp?recID=" + id, std::string("/halvane/community.asp?uid=5"),
          "/halvane/api/recipes/" + id, std::string("/nothing"),
          "/halvane/sendrecipe.asp?recID=" + id}) {
        const auto reply = Get(path);
        const auto policy = reply->get_header_value("Content-Security-Policy");
        EXPECT_NE(policy.find("default-src 'none'"), std::string::npos) << path;
        EXPECT_EQ(policy.find("script"), std::string::npos);
        EXPECT_EQ(policy.find("unsafe"), std::string::npos);
        EXPECT_EQ(reply->get_header_value("X-Content-Type-Options"), "nosniff");
        EXPECT_EQ(reply->get_header_value("Referrer-Policy"), "no-referrer");
        EXPECT_TRUE(reply->get_header_value("Date").ends_with(" GMT")) << path;
        EXPECT_EQ(reply->get_header_value_count("Set-Cookie"), 0U);
    }
}

TEST_P(AbuseTest, ARepeatedSendChangesNothing) {
    Start();
    const auto created = Create();
    const auto path = Api + "/" + std::to_string(created.id) + "/ingredients";
    const json rows = {{"rows", json::array({Row(1)})}};
    Post(path, rows, created.token);
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    const auto before = Data();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(Post(path, rows, created.token)->status, 409);
        Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    }
    EXPECT_EQ(Data(), before);
}
