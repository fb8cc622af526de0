#include "UseTest.h"

#include "commands/Session.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

class WeighTest : public UseTest {
protected:
    QVariant Target() { return Stored("SELECT Calories FROM profiles WHERE UID = 1"); }
};

TEST_F(WeighTest, KeepsTheWeightAndAdaptsTheTargetsAsTheScreenDoes) {
    const Run run = Command({"weigh", "150.5"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_EQ(Stored("SELECT Weight FROM USER_WEIGHTS WHERE UID = 1 AND UDate = '2026-03-02'"),
              150.5);
    EXPECT_EQ(Stored("SELECT current_weight FROM profiles WHERE UID = 1"), 150);
    EXPECT_NE(Target(), 2000);
    EXPECT_EQ(run.out, "Weight on 2026-03-02: 150.5 pounds.\nThe target is " + Target().toString() +
                           " kcal a day.\n");
}

TEST_F(WeighTest, LeavesTheTargetsWhereTheSettingIsOff) {
    SetRegValue(Settings::AutoRDI, "False");
    EXPECT_EQ(Command({"weigh", "150"}).code, Done);
    EXPECT_EQ(Target(), 2000);
}

TEST_F(WeighTest, ASecondWeightOfADayReplacesTheFirst) {
    Command({"weigh", "150", "--date", "yesterday"});
    Command({"weigh", "151", "--date", "2026-03-01"});
    EXPECT_EQ(Stored("SELECT group_concat(Weight) FROM USER_WEIGHTS"), "151.0");
}

TEST_F(WeighTest, RemovingKeepsARowWithoutAWeight) {
    Command({"weigh", "150"});
    const Run run = Command({"weigh", "--remove"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.startsWith("The weight on 2026-03-02 is removed."));
    EXPECT_EQ(Stored("SELECT group_concat(Weight) FROM USER_WEIGHTS"), "0.0");
}

TEST_F(WeighTest, RefusesTheWeightsThatTheScreenRefuses) {
    for (const char* weight : {"0", "abc", "nan", "70kg", ""}) {
        const Run run = Command({"weigh", weight});
        EXPECT_EQ(run.code, Usage);
        EXPECT_TRUE(run.error.contains("Please enter a valid weight greater than '0'.")) << weight;
    }
    EXPECT_TRUE(Command({"weigh", "1000001"}).error.contains("1,000,000 pounds or less"));
    EXPECT_EQ(Command({"weigh"}).code, Usage);
    EXPECT_EQ(Command({"weigh", "150", "--remove"}).code, Usage);
    EXPECT_EQ(Stored("SELECT count(*) FROM USER_WEIGHTS"), 0);
}

TEST_F(WeighTest, PrintsFactsAsJson) {
    const QJsonObject facts = Facts(Command({"weigh", "150", "--json"}));
    EXPECT_EQ(facts["date"], "2026-03-02");
    EXPECT_EQ(facts["weight"], 150);
    EXPECT_EQ(facts["targetCalories"].toDouble(), Target().toDouble());
    EXPECT_TRUE(Facts(Command({"weigh", "--remove", "--json"}))["weight"].isNull());
}
