#include "UseTest.h"

#include "commands/Session.h"

class CopyTest : public UseTest {
protected:
    void SetUp() override {
        UseTest::SetUp();
        for (const char* meal : {"Breakfast", "Lunch", "Lunch"})
            Command({"log", Butter, "-q", "0.3", "-d", "2026-03-01", "-m", meal});
    }
};

TEST_F(CopyTest, ADayIsCopiedToToday) {
    const Run run = Command({"copy-day", "yesterday"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_EQ(run.out, "Copied from 2026-03-01 to 2026-03-02: 3 foods.\n");
    EXPECT_EQ(Stored("SELECT count(*) FROM USER_FOODS a JOIN USER_FOODS b ON a.RecID = b.RecID + 3 "
                     "AND a.Calories = b.Calories AND a.Meal = b.Meal WHERE a.UDate = "
                     "'2026-03-02'"),
              3);
}

TEST_F(CopyTest, AMealIsCopiedToTheDayThatIsNamed) {
    const Run run = Command({"copy-meal", "lunch", "2026-03-01", "2026-03-05", "--json"});
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(Facts(run)["copied"], 2);
    EXPECT_EQ(Facts(run)["to"], "2026-03-05");
    EXPECT_EQ(Stored("SELECT count(*) FROM USER_FOODS WHERE UDate = '2026-03-05'"), 2);
}

TEST_F(CopyTest, ADayWithoutFoodsIsToldAndNothingIsCopied) {
    const Run run = Command({"copy-day", "2020-01-01"});
    EXPECT_EQ(run.code, Found);
    EXPECT_EQ(run.out, "Nothing to copy is logged on 2020-01-01.\n");
    EXPECT_EQ(Logged(), 3);
}

TEST_F(CopyTest, RefusesOneDayTwiceAndWhatIsNoDayOrNoMeal) {
    EXPECT_TRUE(Command({"copy-day", "today"}).error.contains("Please give two different days."));
    for (const QStringList& wrong : {QStringList{"copy-day"},
                                     {"copy-day", "today"},
                                     {"copy-day", "3/1/2026"},
                                     {"copy-meal", "lunch"},
                                     {"copy-meal", "tea", "yesterday"}})
        EXPECT_EQ(Command(wrong).code, Usage);
    EXPECT_EQ(Logged(), 3);
}
