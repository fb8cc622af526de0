#include "support/ExchangeTest.h"

#include "exchange/Text.h"

#include <cstdlib>
#include <filesystem>
#include <regex>

/// The pages, as text and in a browser.
class PagesTest : public ExchangeTest {
protected:
    void SetUp() override { Start(); }

    static json Named(const std::string& name) {
        auto recipe = Soup();
        recipe["RecipeName"] = name;
        return recipe;
    }
    std::string List(const std::string& query = {}) {
        return Text("/halvane/community.asp" + query);
    }
    static std::vector<std::string> Names(const std::string& page) {
        std::vector<std::string> names;
        const std::regex link("recID=\\d+\">([^<]*)<");
        for (std::sregex_iterator at(page.begin(), page.end(), link), end; at != end; ++at)
            names.push_back((*at)[1]);
        return names;
    }
};
ON_BOTH_DATABASES(PagesTest);

using Texts = std::vector<std::string>;

TEST_P(PagesTest, TheListHasThePublicRecipesNewestFirst) {
    for (const auto* name : {"First", "Second", "Third"})
        Send(Named(name));
    auto hidden = Named("Hidden");
    hidden["ISPUBLIC"] = false;
    Send(hidden);
    Create(Named("Unfinished"));
    EXPECT_EQ(Names(List("?uid=1234")), (Texts{"Third", "Second", "First"}));
}

TEST_P(PagesTest, ASearchFindsWordsOfTheNameAndOfTheIngredients) {
    Send(Named("Lentil soup"), json::array({Row(1, "Onions, raw")}));
    Send(Named("Onion pie"), json::array({Row(1, "Cheese")}));
    Send(Named("Tomato salad"), json::array({Row(1, "Tomatoes, red, ripe")}));
    EXPECT_EQ(Names(List("?q=onion")), (Texts{"Onion pie", "Lentil soup"}));
    EXPECT_EQ(Names(List("?q=ONIONS")), (Texts{"Onion pie", "Lentil soup"}));
    EXPECT_EQ(Names(List("?q=onion+soup")), (Texts{"Lentil soup"}));
    EXPECT_EQ(Names(List("?q=soup%2C+onion")), (Texts{"Lentil soup"}));
    EXPECT_EQ(Names(List("?q=tomato+red+ripe+salad+tomatoes")), (Texts{"Tomato salad"}));
    EXPECT_TRUE(Names(List("?q=tomato+onion")).empty());
    EXPECT_TRUE(Names(List("?q=%25")).empty());
    EXPECT_TRUE(Names(List("?q=oni")).empty());
    EXPECT_EQ(Names(List("?q=")).size(), 3U);
}

TEST_P(PagesTest, LettersBeyondAsciiAreFound) {
    Send(Named("Crème brûlée"));
    Send(Named("Борщ"));
    EXPECT_EQ(Names(List("?q=cr%C3%A8me")), (Texts{"Crème brûlée"}));
    EXPECT_EQ(Names(List("?q=%D0%91%D0%BE%D1%80%D1%89")), (Texts{"Борщ"}));
}

TEST_P(PagesTest, TheListIsTurnedByPages) {
    for (int i = 1; i <= 45; ++i)
        Send(Named("Number " + std::to_string(i)), json::array());
    const auto first = List();
    const auto second = List("?page=2");
    const auto third = List("?page=3");
    EXPECT_EQ(Names(first).size(), 20U);
    EXPECT_EQ(Names(second)[0], "Number 25");
    EXPECT_EQ(Names(third), (Texts{"Number 5", "Number 4", "Number 3", "Number 2", "Number 1"}));
    EXPECT_EQ(first.find("Newer recipes"), std::string::npos);
    EXPECT_NE(first.find("?page=2\">Older recipes"), std::string::npos);
    EXPECT_NE(second.find("?page=1\">Newer recipes"), std::string::npos);
    EXPECT_EQ(third.find("Older recipes"), std::string::npos);
    EXPECT_NE(List("?page=4").find("There are no older recipes."), std::string::npos);
    EXPECT_NE(List("?q=number").find("?page=2&amp;q=number\">Older"), std::string::npos);
    EXPECT_EQ(Get("/halvane/community.asp?page=501")->status, 404);
    EXPECT_EQ(Get("/halvane/community.asp?page=0")->status, 404);
}

TEST_P(PagesTest, ThePageOfARecipeHasItsCardItsIDAndItsNutrition) {
    auto other = Row(100, "Onions, raw");
    other[14] = nullptr;
    const auto id = std::to_string(Send(Soup(), json::array({Row(310), other})));
    const auto page = Text("/halvane/recipe.asp?recID=" + id);
    for (const auto& part :
         {std::string("<h1>Lentil soup</h1>"), std::string("<dd>4 servings</dd>"),
          std::string("<dd>45.5 minutes</dd>"), std::string("<dd>1 bowl</dd>"),
          std::string("<dd>102 per serving</dd>"), "<p class=\"big\">" + id + "</p>",
          std::string("Lentils, raw"), std::string("Onions, raw"),
          std::string("Rinse the lentils.\nSimmer."),
          std::string("<th scope=\"row\">Calories</th><td>102</td>"),
          std::string("<th scope=\"row\">Total fat</th><td>3.56 g</td>"),
          std::string("<th scope=\"row\">Water</th><td>5.62 g</td>")})
        EXPECT_NE(page.find(part), std::string::npos) << part;
}

TEST_P(PagesTest, APrivateRecipeIsShownByItsIDAndNotIndexed) {
    const auto hidden = std::to_string(Send(Soup(false)));
    const auto shared = std::to_string(Send(Soup(true)));
    const auto robots = std::string("name=\"robots\" content=\"noindex\"");
    EXPECT_NE(Text("/halvane/recipe.asp?recID=" + hidden).find(robots), std::string::npos);
    EXPECT_EQ(Text("/halvane/recipe.asp?recID=" + shared).find(robots), std::string::npos);
}

TEST_P(PagesTest, ARecipeWithoutYieldOrIngredientsHasAPageToo) {
    auto recipe = Soup();
    recipe["RecipeYield"] = 0;
    recipe["ServingName"] = "";
    recipe["Instructions"] = "\r\n";
    const auto page =
        Text("/halvane/recipe.asp?recID=" + std::to_string(Send(recipe, json::array())));
    EXPECT_NE(page.find("<dd>-- per serving</dd>"), std::string::npos);
    EXPECT_NE(page.find("has no ingredients"), std::string::npos);
    EXPECT_NE(page.find("has no instructions"), std::string::npos);
    EXPECT_EQ(page.find("Serving size"), std::string::npos);
}

TEST_P(PagesTest, AnExtremeYieldGivesNoMeaninglessNumbers) {
    for (const auto yield : {1e-300, 1e-12, -1e-320}) {
        auto recipe = Soup();
        recipe["RecipeYield"] = yield;
        const auto page = Text("/halvane/recipe.asp?recID=" + std::to_string(Send(recipe)));
        EXPECT_NE(page.find("<dd>-- per serving</dd>"), std::string::npos) << yield;
    }
    EXPECT_NE(List().find("<span class=\"note\">1 bowl, 45.5 minutes</span>"), std::string::npos);
}

TEST_P(PagesTest, AnEnormousNameIsShownShortened) {
    auto recipe = Named(std::string(400'000, 'W'));
    recipe["ServingName"] = std::string(400'000, 'm');
    const auto id = std::to_string(Send(recipe, json::array({Row(1, std::string(900'000, 'i'))})));
    const auto list = List();
    EXPECT_EQ(Names(list), (Texts{std::string(120, 'W') + "…"}));
    EXPECT_LT(list.size(), 5000U);
    const auto page = Text("/halvane/recipe.asp?recID=" + id);
    EXPECT_NE(page.find("<h1>" + std::string(400, 'W') + "…</h1>"), std::string::npos);
    EXPECT_LT(page.size(), 20'000U);
}

TEST_P(PagesTest, InvisibleCharactersAreLeftOut) {
    auto recipe = Named("Soup\u202egpj.\u0085exe\u0000\u001b");
    recipe["Instructions"] = "1.\tCut\r\n\u0007\u009b2. Boil";
    const auto id = std::to_string(Send(recipe, json::array({Row(1, "\u200b")})));
    EXPECT_EQ(Names(List()), (Texts{"Soupgpj. exe"}));
    const auto page = Text("/halvane/recipe.asp?recID=" + id);
    EXPECT_NE(page.find("<h1>Soupgpj. exe</h1>"), std::string::npos);
    EXPECT_NE(page.find(">1.\tCut\n2. Boil<"), std::string::npos);
    EXPECT_NE(page.find("<li>(no name)"), std::string::npos);
}

TEST_P(PagesTest, AnInvisibleNameIsShownAsNoName) {
    const auto id = std::to_string(Send(Named("\u200b \u3164")));
    EXPECT_EQ(Names(List()), (Texts{"(no name)"}));
    EXPECT_NE(Text("/halvane/recipe.asp?recID=" + id).find("<h1>(no name)</h1>"),
              std::string::npos);
}

TEST_P(PagesTest, OneIsWrittenInTheSingular) {
    auto recipe = Soup();
    recipe["RecipeYield"] = recipe["PrepTime"] = 1;
    const auto id = std::to_string(Send(recipe, json::array({Row(1)})));
    const auto page = Text("/halvane/recipe.asp?recID=" + id);
    EXPECT_NE(page.find("<dd>1 serving</dd>"), std::string::npos);
    EXPECT_NE(page.find("<dd>1 minute</dd>"), std::string::npos);
    EXPECT_NE(List().find(">1 bowl, 1 calorie per serving, 1 minute<"), std::string::npos);
}

TEST_P(PagesTest, ASearchWithoutResultSaysSoAndLeadsBack) {
    const auto page = List("?q=nothing");
    EXPECT_NE(page.find(">Nothing found<"), std::string::npos);
    EXPECT_NE(page.find("<a href=\"/halvane/community.asp\">Show the newest"), std::string::npos);
    EXPECT_EQ(List().find("Show the newest"), std::string::npos);
}

TEST_P(PagesTest, OnlyTheFirstWordsOfARecipeAreFound) {
    auto rows = json::array();
    for (int row = 0; row < 200; ++row) {
        std::string food;
        for (int word = 0; word < 20; ++word)
            food += "w" + std::to_string(row * 20 + word) + " ";
        rows.push_back(Row(1, food));
    }
    Send(Soup(), rows);
    EXPECT_EQ(Names(List("?q=lentil")).size(), 1U);
    EXPECT_EQ(Names(List("?q=w500")).size(), 1U);
    EXPECT_TRUE(Names(List("?q=w3999")).empty());
}

TEST_P(PagesTest, TheFrontPageAnswersAtBothItsAddresses) {
    EXPECT_EQ(Text("/index.asp?ref=Halvane"), Text("/"));
    EXPECT_NE(Text("/").find("<h1>Halvane</h1>"), std::string::npos);
}

/// In Chromium, once: what the database is makes no difference to a browser.
class BrowserTest : public PagesTest {
protected:
    void SetUp() override {
        PagesTest::SetUp();
        for (int i = 0; i < 25; ++i)
            Send(Named("Recipe number " + std::to_string(i)), json::array({Row(100)}));
        auto longest = Named(std::string(90, 'W') + " with " + std::string(200, 'n'));
        longest["ServingName"] = std::string(300, 'm');
        longest["Instructions"] =
            std::string(400, 'x') + "\n\n1. Chop.\n2. " + std::string(900, 'o');
        longest_ = std::to_string(
            Send(longest, json::array({Row(1e6, std::string(500, 'i')), Row(123456.789)})));
        usual_ =
            std::to_string(Send(Soup(), json::array({Row(400), Row(120, "Onions, raw"),
                                                     Row(88, "Oil, olive, salad or cooking")})));
    }

    static std::string Browse(std::vector<std::string> arguments) {
        const Folder profile;
        arguments.insert(arguments.begin(),
                         {"chromium", "--headless", "--no-sandbox", "--disable-gpu",
                          "--disable-dev-shm-usage", "--no-first-run", "--hide-scrollbars",
                          "--user-data-dir=" + profile.Path()});
        std::string output;
        EXPECT_EQ(Process::Run(arguments, &output), 0) << output;
        return output;
    }

    std::vector<std::pair<std::string, std::string>> Addresses() const {
        return {{"front", "/index.asp?ref=Halvane"},
                {"list", "/halvane/community.asp?uid=1"},
                {"second page", "/halvane/community.asp?page=2"},
                {"search", "/halvane/community.asp?q=onion"},
                {"nothing found", "/halvane/community.asp?q=nothing"},
                {"recipe", "/halvane/recipe.asp?recID=" + usual_},
                {"long recipe", "/halvane/recipe.asp?recID=" + longest_},
                {"not found", "/halvane/recipe.asp?recID=7"}};
    }

    std::string longest_;
    std::string usual_;
};
INSTANTIATE_TEST_SUITE_P(PagesTest, BrowserTest, testing::Values("sqlite"));

TEST_P(BrowserTest, ThePagesKeepTheRulesOfAccessibilityAtEveryWidth) {
    const auto style = "<style>" + Text("/halvane/style.css") + "</style>";
    json pages = json::array();
    for (const auto& [name, address] : Addresses()) {
        auto html = Get(address)->body;
        exchange::ReplaceAll(html, "<link rel=\"stylesheet\" href=\"/halvane/style.css\">", style);
        pages.push_back({{"name", name}, {"html", html}});
    }
    auto data = pages.dump();
    exchange::ReplaceAll(data, "</", "<\\/");
    const Folder folder;
    WriteFile(folder / "audit.html",
              "<!DOCTYPE html><meta charset=utf-8><body><script>" +
                  ReadFile(std::string(HALVANE_SOURCE_DIR) + "/tests/exchange/audit.js") + "run(" +
                  data + ");</script>");
    const auto dom = Browse(
        {"--virtual-time-budget=20000", "--dump-dom", "file://" + folder.Path() + "/audit.html"});
    const auto begin = dom.find("RESULT{");
    const auto end = dom.rfind("}END");
    ASSERT_NE(begin, std::string::npos) << dom.substr(0, 2000);
    auto text = dom.substr(begin + 6, end + 1 - begin - 6);
    for (const auto& [entity, letter] : {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&amp;", "&"}})
        exchange::ReplaceAll(text, entity, letter);
    const auto result = json::parse(text);
    EXPECT_EQ(result["pages"], 8);
    EXPECT_GE(result["rules"], 20);
    for (const auto& finding : result["found"])
        ADD_FAILURE() << finding.get<std::string>();
}

TEST_P(BrowserTest, TheBrowserShowsThePagesUnderTheirStrictPolicy) {
    const Folder folder;
    const char* shots = std::getenv("HALVANE_SHOTS");
    const auto place = shots ? std::string(shots) : folder.Path();
    std::filesystem::create_directories(place);
    const auto file = place + "/recipe-desktop.png";
    const auto output =
        Browse({"--window-size=1280,1000", "--enable-logging=stderr", "--screenshot=" + file,
                Running().Address() + "/halvane/recipe.asp?recID=" + usual_});
    EXPECT_GT(std::filesystem::file_size(file), 20'000U);
    EXPECT_EQ(output.find("Content Security Policy"), std::string::npos) << output;
    EXPECT_EQ(output.find("Failed to load"), std::string::npos) << output;
    EXPECT_NE(Running().Log().find("style.css\",\"status\":200"), std::string::npos);
    EXPECT_NE(Running().Log().find("logo.svg\",\"status\":200"), std::string::npos);
}
