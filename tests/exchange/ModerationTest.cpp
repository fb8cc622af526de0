#include "support/ExchangeTest.h"

#include <cstdlib>
#include <regex>

/// Reports of readers, and the commands of the operator.
class ModerationTest : public ExchangeTest {
protected:
    static constexpr const char* Secret = "the secret of the tests, which is long enough";

    struct Said {
        int code = 0;
        std::string text;
    };
    /// Runs the program for the operator, beside the server.
    Said Operate(const std::vector<std::string>& arguments) {
        ::setenv("HALVANE_EXCHANGE_DATABASE", Database().c_str(), 1);
        ::setenv("HALVANE_EXCHANGE_SECRET", Secret, 1);
        std::vector<std::string> command{Server::Program()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        Said said;
        said.code = Process::Run(command, &said.text);
        ::unsetenv("HALVANE_EXCHANGE_DATABASE");
        ::unsetenv("HALVANE_EXCHANGE_SECRET");
        return said;
    }

    Server& StartWith(Server::Settings settings = {}) {
        settings.try_emplace("secret", Secret);
        return Start(settings);
    }

    std::string TokenOn(const std::string& page) {
        std::smatch found;
        std::regex_search(page, found, std::regex("name=\"token\" value=\"([0-9a-f]+)\""));
        return found[1];
    }
    httplib::Result Report(int id, const std::string& token, const std::string& words = "",
                           const httplib::Headers& headers = {}) {
        const httplib::Params form{{"recID", std::to_string(id)},
                                   {"token", token},
                                   {"complaint", "advertising"},
                                   {"words", words}};
        return Running().Client().Post("/halvane/report.asp", headers, form);
    }
    std::string Token(int id) {
        return TokenOn(Text("/halvane/recipe.asp?recID=" + std::to_string(id)));
    }
    std::string Path(int id) { return "/halvane/api/recipes/" + std::to_string(id); }
};
ON_BOTH_DATABASES(ModerationTest);

TEST_P(ModerationTest, AHiddenRecipeIsNeitherReadListedFoundNorSent) {
    StartWith();
    const int id = Send();
    const auto number = std::to_string(id);
    EXPECT_EQ(Operate({"--hide", number}).text, "The recipe is hidden.\n");
    for (const auto& path :
         {Path(id), Path(id) + "/ingredients", "/halvane/recipe.asp?recID=" + number,
          "/halvane/sendrecipe.asp?recID=" + number})
        EXPECT_EQ(Get(path)->status, 404) << path;
    for (const auto* list : {"/halvane/community.asp", "/halvane/community.asp?q=lentil"})
        EXPECT_EQ(Text(list).find(number), std::string::npos) << list;
    EXPECT_EQ(Operate({"--hide", number}).code, 1);
}

TEST_P(ModerationTest, AHiddenRecipeIsShownAgainAsItWas) {
    StartWith();
    Send();
    const int id = Send();
    Send();
    const auto number = std::to_string(id);
    const auto recipe = Text(Path(id));
    const auto ingredients = Text(Path(id) + "/ingredients");
    const auto list = Text("/halvane/community.asp");
    const auto found = Text("/halvane/community.asp?q=lentil");
    Operate({"--hide", number});
    EXPECT_EQ(Operate({"--show", number}).text, "The recipe is shown again.\n");
    EXPECT_EQ(Text(Path(id)), recipe);
    EXPECT_EQ(Text(Path(id) + "/ingredients"), ingredients);
    EXPECT_EQ(Text("/halvane/community.asp"), list);
    EXPECT_EQ(Text("/halvane/community.asp?q=lentil"), found);
    EXPECT_EQ(Operate({"--show", number}).code, 1);
}

TEST_P(ModerationTest, ARecipeThatIsHiddenBeforeItIsSentStaysUnsent) {
    StartWith();
    const auto created = Create();
    const auto number = std::to_string(created.id);
    Operate({"--hide", number});
    EXPECT_EQ(Get("/halvane/sendrecipe.asp?recID=" + number)->status, 404);
    EXPECT_EQ(
        Post(Path(created.id) + "/ingredients", {{"rows", json::array({Row(1)})}}, created.token)
            ->status,
        403);
    Operate({"--show", number});
    Add(created, json::array({Row(1)}));
    Text("/halvane/sendrecipe.asp?recID=" + number);
    EXPECT_EQ(Get(Path(created.id))->status, 200);
}

TEST_P(ModerationTest, AReportReachesTheOperator) {
    StartWith();
    EXPECT_EQ(Operate({"--reported"}).text, "No recipe has been reported.\n");
    const int other = Send();
    const int id = Send();
    EXPECT_EQ(Report(other, Token(other))->status, 200);
    const auto reply = Report(id, Token(id), "Buy \x1b[2J\nhere\xe2\x80\xae!");
    EXPECT_EQ(reply->status, 200);
    EXPECT_NE(reply->body.find("Thank you"), std::string::npos);
    const auto said = Operate({"--reported"}).text;
    EXPECT_NE(said.find(std::to_string(id) + "  Lentil soup (1 report)\n"), std::string::npos)
        << said;
    EXPECT_NE(said.find("  It is advertising or a scam: Buy [2J here!\n"), std::string::npos)
        << said;
    EXPECT_LT(said.find(std::to_string(id)), said.find(std::to_string(other)))
        << "the newest first";
    Operate({"--hide", std::to_string(id)});
    EXPECT_NE(Operate({"--reported"}).text.find("(1 report, hidden)"), std::string::npos);
}

TEST_P(ModerationTest, TheReportsOfARecipeAreDismissedOrGoWithIt) {
    StartWith();
    const int one = Send();
    const int other = Send();
    Report(one, Token(one));
    Report(other, Token(other));
    EXPECT_EQ(Operate({"--dismiss", std::to_string(one)}).text, "The reports are deleted.\n");
    EXPECT_EQ(Operate({"--dismiss", std::to_string(one)}).code, 1);
    EXPECT_EQ(Get(Path(one))->status, 200);
    Operate({"--remove", std::to_string(other)});
    EXPECT_EQ(Count("SELECT COUNT(*) FROM reports"), 0);
}

TEST_P(ModerationTest, AReportNeedsTheTokenOfItsRecipeAndOfItsReader) {
    StartWith({{"trusted_proxies", "127.0.0.1"}});
    const int one = Send();
    const int other = Send();
    const httplib::Headers reader{{"X-Forwarded-For", "192.0.2.1"}};
    const httplib::Headers stranger{{"X-Forwarded-For", "198.51.100.1"}};
    const auto page =
        Running().Client().Get("/halvane/recipe.asp?recID=" + std::to_string(one), reader);
    const auto token = TokenOn(page->body);
    EXPECT_EQ(Report(one, token, "", stranger)->status, 403);
    EXPECT_EQ(Report(other, token, "", reader)->status, 403);
    EXPECT_EQ(Report(one, "", "", reader)->status, 403);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM reports"), 0);
    EXPECT_EQ(Report(one, token, "", reader)->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM reports"), 1);
}

TEST_P(ModerationTest, ReportsOfAClientAndOfADayHaveTheirLimits) {
    AwaitFreshHour();
    for (const auto* setting : {"reports_per_client_day", "reports_per_day"}) {
        const auto database = OnServer() ? Cluster::One().CreateDatabase() : Database() + setting;
        StartWith({{setting, "2"}, {"database", database}});
        const int id = Send();
        const auto token = Token(id);
        EXPECT_EQ(Report(id, token)->status, 200);
        EXPECT_EQ(Report(id, token)->status, 200);
        EXPECT_EQ(Report(id, token)->status, 429) << setting;
    }
}

TEST_P(ModerationTest, OfOneRecipeTwentyReportsAreKept) {
    StartWith({{"reports_per_client_day", "100"}});
    const int id = Send();
    const auto token = Token(id);
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(Report(id, token)->status, 200);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM reports"), 20);
}

TEST_P(ModerationTest, BeforeTheFirstStartACommandSaysThatTheTablesAreMissing) {
    for (const std::vector<std::string>& command :
         std::vector<std::vector<std::string>>{{"--check"}, {"--reported"}, {"--hide", "123456"}}) {
        const auto said = Operate(command);
        EXPECT_EQ(said.code, 3);
        EXPECT_EQ(said.text, "halvane-exchange: the tables are not up to date; start the server, "
                             "which updates them\n");
    }
}

TEST_P(ModerationTest, ACommandWithAWrongArgumentIsRefused) {
    StartWith();
    for (const auto* command : {"--hide", "--show", "--remove", "--dismiss"}) {
        EXPECT_EQ(Operate({command}).code, 2) << command;
        EXPECT_EQ(Operate({command, "123456"}).code, 1) << command;
        EXPECT_EQ(Operate({command, "abc"}).code, 1) << command;
    }
    const auto help = Operate({"--help"});
    for (const auto* command :
         {"--reported", "--hide", "--show", "--remove", "--dismiss", "--nomail"})
        EXPECT_NE(help.text.find(command), std::string::npos);
    EXPECT_EQ(Operate({"--nomail", "nobody"}).code, 1);
}
