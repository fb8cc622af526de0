#include "CommandTest.h"

#include "commands/Session.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

class SearchTest : public CommandTest {};

TEST_F(SearchTest, PrintsALineForEachFoodThatHasAllWords) {
    const Run run = Command({"search", "lentils", "cooked"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.contains("LENTILS", Qt::CaseInsensitive)) << run.out.toStdString();
    EXPECT_EQ(run.error, "");
}

TEST_F(SearchTest, PrintsFactsAsJson) {
    const Run run = Command({"search", "--json", "lentils"});
    const QJsonArray found = QJsonDocument::fromJson(run.out.toUtf8()).object()["found"].toArray();
    ASSERT_FALSE(found.isEmpty());
    EXPECT_EQ(found[0]["kind"], "food");
    EXPECT_GT(found[0]["key"].toInt(), 0);
}

TEST_F(SearchTest, EndsWithFoundNothing) {
    EXPECT_EQ(Command({"search", "xyzzy"}).code, Found);
}

TEST_F(SearchTest, WithoutWordsIsAUsageError) {
    const Run run = Command({"search"});
    EXPECT_EQ(run.code, Usage);
    EXPECT_NE(run.error, "");
}

TEST_F(SearchTest, ShowsAnExampleInItsHelp) {
    const Run run = Command({"search", "--help"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.contains("Example: halvane-data search")) << run.out.toStdString();
}

TEST_F(SearchTest, WhereTheRecordsAreMissingItSaysWhichFile) {
    const Run run = Command({"search", "--folder", Folder() + "/missing", "pie"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("missing/users.mdb")) << run.error.toStdString();
}

TEST_F(SearchTest, PrintsTheKeyThatOtherCommandsTakeAndBothServings) {
    EXPECT_TRUE(Command({"search", "butter,", "salted"})
                    .out.contains("food:16096    Butter, salted (1 cup | 1 tbsp)\n"));
}

TEST_F(SearchTest, TellsThatASourceMayHaveMoreThanItListed) {
    const Run run = Command({"search", "e"});
    EXPECT_EQ(run.out.count('\n'), 201);
    EXPECT_TRUE(run.error.contains("There may be more")) << run.error.toStdString();
    EXPECT_EQ(Command({"search", "lentils"}).error, "");
}

TEST_F(SearchTest, PrintsNoMoreThanTheLimit) {
    const Run run = Command({"search", "lentils", "--limit", "2"});
    EXPECT_EQ(run.out.count('\n'), 2);
    EXPECT_TRUE(run.error.contains(" more match.")) << run.error.toStdString();
    for (const QString limit : {"0", "-1", "x", "99999999999"}) {
        const Run wrong = Command({"search", "lentils", "--limit", limit});
        EXPECT_EQ(wrong.code, Usage);
        EXPECT_TRUE(wrong.error.contains("--limit: \"" + limit + "\" is not a number above 0."))
            << wrong.error.toStdString();
    }
}

TEST_F(SearchTest, AnEmptyTermIsRefusedAsOnTheScreen) {
    const Run run = Command({"search", ""});
    EXPECT_EQ(run.code, Usage);
    EXPECT_TRUE(run.error.contains("Please enter a search term."));
}
