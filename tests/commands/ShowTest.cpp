#include "UseTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"

#include <QJsonArray>

class ShowTest : public UseTest {
protected:
    void SetUp() override {
        UseTest::SetUp();
        Command({"log", Butter, "-s", "B", "-q", "2", "-m", "Breakfast"});
    }
};

TEST_F(ShowTest, ShowsMealsLinesAndTotalsAgainstTheTargets) {
    const Run run = Command({"show"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    for (const char* line :
         {"Monday, March 02, 2026, Anna\n",
          "\nBreakfast\n  log:1       Butter, salted, 1 tbsp (x 2), 204 kcal\n\nLunch\n\nDinner\n",
          "\nCalories                    204 kcal     10% of 2000 kcal\n",
          "\nVit. E                       0.66 mg      4% of 15 mg\n"})
        EXPECT_TRUE(run.out.contains(line)) << line << "\n" << run.out.toStdString();
}

TEST_F(ShowTest, TheWeightOfADaySetsItsTargetsWithoutChangingThem) {
    Store("INSERT INTO USER_WEIGHTS VALUES (1, '2026-03-02', 150.5)");
    const Run run = Command({"show"});
    EXPECT_TRUE(run.out.contains("\nWeight: 150.5 pounds\n"));
    EXPECT_FALSE(run.out.contains("of 2000 kcal"));
    EXPECT_EQ(Stored("SELECT Calories FROM profiles"), 2000);
}

TEST_F(ShowTest, ADayWithoutFoodsHasNoData) {
    const Run run = Command({"show", "yesterday"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.endsWith("Snacks\n\nNo data for this day\n")) << run.out.toStdString();
}

TEST_F(ShowTest, PrintsFactsAsJson) {
    const QJsonObject day = Facts(Command({"show", "2026-03-02", "--json"}));
    EXPECT_EQ(day["date"], "2026-03-02");
    EXPECT_EQ(day["profile"], "Anna");
    EXPECT_TRUE(day["weight"].isNull());
    EXPECT_EQ(day["hasData"], true);
    EXPECT_EQ(day["meals"][0]["foods"][0]["key"], 1);
    EXPECT_EQ(day["meals"][3]["meal"], "Snacks");
    EXPECT_EQ(day["totals"].toArray().size(), 28);
    EXPECT_EQ(day["totals"][0]["nutrient"], "Calories");
    EXPECT_EQ(day["totals"][0]["amount"], 204);
    EXPECT_EQ(day["totals"][0]["percent"].toDouble(), 204.0 / 2000 * 100);
}

TEST_F(ShowTest, ShowsADayWhileTheWindowIsOpen) {
    const RecordsLock window{RecordsFolder(Folder())};
    EXPECT_TRUE(Command({"show"}).out.contains("Butter, salted"));
}

TEST_F(ShowTest, APersonWhoIsNotThereIsTold) {
    const Run run = Command({"show", "--profile", "Eve"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("There is no profile \"Eve\"."));
}
