#include "UseTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "records/Snapshots.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QDir>
#include <QJsonArray>

class LogTest : public UseTest {
protected:
    void ExpectRefused(const QStringList& arguments, const QString& message) {
        const Run run = Command(QStringList{"log"} + arguments);
        EXPECT_EQ(run.code, Usage) << run.out.toStdString();
        EXPECT_TRUE(run.error.contains(message)) << run.error.toStdString();
        EXPECT_EQ(Logged(), 0);
    }
};

TEST_F(LogTest, LogsAFoodByItsKeyAndPrintsItsCalories) {
    const Run run = Command({"log", Butter, "--serving", "b", "-q", "2", "-m", "lunch"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_EQ(run.out, "Logged for Lunch on 2026-03-02: Butter, salted, 1 tbsp (x 2), 204 kcal.\n");
    EXPECT_EQ(Stored("SELECT Calories FROM USER_FOODS WHERE UID = 1 AND Meal = 'Lunch' AND UDate = "
                     "'2026-03-02' AND QTY = 2 AND ID = 16096"),
              717.0 / 100 * 14.2 * 2);
}

TEST_F(LogTest, TheServingIsAAndTheQuantity1WhereNoneIsSaid) {
    EXPECT_EQ(Command({"log", Butter, "-m", "s"}).code, Done);
    EXPECT_EQ(Stored("SELECT Serving || QTY || Meal FROM USER_FOODS"), "1 cup1.0Snacks");
}

TEST_F(LogTest, LogsForThePersonAndTheDayThatAreNamed) {
    EXPECT_EQ(Command({"log", Butter, "-m", "d", "--date", "2020-02-29", "--profile", "ben"}).code,
              Done);
    EXPECT_EQ(Stored("SELECT UDate FROM USER_FOODS WHERE UID = 2"), "2020-02-29");
}

TEST_F(LogTest, WithoutAMealItTakesTheOneThatTheWindowHadTicked) {
    SetRegValue(Settings::Meal, "2");
    EXPECT_EQ(Command({"log", Butter}).code, Done);
    EXPECT_EQ(Stored("SELECT Meal FROM USER_FOODS"), "Dinner");
}

TEST_F(LogTest, WithoutAMealAndWithoutAWindowItAsksForOne) {
    ExpectRefused({Butter},
                  "Please say for which meal: --meal Breakfast, Lunch, Dinner or Snacks.");
}

TEST_F(LogTest, WordsOfOneFoodAloneNameIt) {
    EXPECT_EQ(Command({"log", "butter", "whipped", "with", "salt", "-m", "b"}).code, Done);
    EXPECT_EQ(Stored("SELECT FoodName FROM USER_FOODS"), "Butter, whipped, with salt");
}

TEST_F(LogTest, AWholeNameNamesItsFoodAmongOthersWithTheSameWords) {
    EXPECT_EQ(Command({"log", "BUTTER, SALTED", "-m", "b"}).code, Done);
    EXPECT_EQ(Stored("SELECT ID FROM USER_FOODS"), 16096);
}

TEST_F(LogTest, WordsOfSeveralFoodsListThemAndLogNothing) {
    const Run run = Command({"log", "butter", "-m", "b"});
    EXPECT_EQ(run.code, Found);
    EXPECT_TRUE(run.out.contains("food:16096")) << run.out.toStdString();
    EXPECT_TRUE(
        run.error.contains("Several match. Name one by its key, or add words of its name."));
    EXPECT_EQ(run.out.count('\n'), 20);
    EXPECT_TRUE(run.error.contains(" more match.")) << run.error.toStdString();
    EXPECT_EQ(Logged(), 0);
}

TEST_F(LogTest, AFoodThatIsNotFoundTouchesNothing) {
    const RecordsFolder records(Folder());
    const RecordsLock window{records};
    const Run run = Command({"log", "xyzzy", "-m", "b"});
    EXPECT_EQ(run.code, Found);
    EXPECT_TRUE(run.error.contains("No foods or recipes matched")) << run.error.toStdString();
    EXPECT_FALSE(QDir(Snapshots(records).Place()).exists()) << "no snapshot was made";
}

TEST_F(LogTest, WordsOfNoFoodSaySo) {
    const Run run = Command({"log", "xyzzy", "-m", "b"});
    EXPECT_EQ(run.code, Found);
    EXPECT_TRUE(run.error.contains("No foods or recipes matched your search term."));
}

TEST_F(LogTest, AQuoteInANameIsACharacterLikeOthers) {
    Store("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A) VALUES (23509, 'Anna''s \"best\" pie', "
          "'1 slice')",
          true);
    EXPECT_EQ(Command({"log", "anna's", "\"best\"", "-m", "b"}).code, Done);
    EXPECT_EQ(Stored("SELECT ID FROM USER_FOODS"), 23509);
}

TEST_F(LogTest, LogsARecipeByKeyOrByWords) {
    Store("INSERT INTO Recipes (RecipeName, ServingName) VALUES ('Butter soup', '1 bowl');"
          "INSERT INTO Ingredients (RecipeID, Calories) VALUES (1, 80), (1, 20)");
    for (const QStringList& named :
         {QStringList{"recipe:1"}, {"1", "--recipe"}, {"butter", "--recipe"}})
        EXPECT_EQ(Command(QStringList{"log", "-m", "b", "-q", ".5"} + named).code, Done);
    EXPECT_EQ(Stored("SELECT count(*) FROM USER_FOODS WHERE Calories = 50 AND FoodName = 'Butter "
                     "soup'"),
              3);
}

TEST_F(LogTest, AKeyThatNothingHasIsToldAndNothingIsLogged) {
    for (const char* key : {"food:99999", "recipe:7", "99999999999"}) {
        const Run run = Command({"log", key, "-m", "b"});
        EXPECT_EQ(run.code, Cannot);
        EXPECT_TRUE(run.error.contains("There is no ")) << run.error.toStdString();
    }
    EXPECT_EQ(Logged(), 0);
}

TEST_F(LogTest, RefusesTheQuantitiesThatTheScreenRefuses) {
    for (const char* quantity : {"0", "99.01", "abc", "", "nan", "inf", "2 cups"})
        ExpectRefused({Butter, "-m", "b", "-q", quantity},
                      "Please enter a quantity (QTY) between .1 and 99");
}

TEST_F(LogTest, TakesTheQuantitiesThatTheScreenTakes) {
    for (const char* quantity : {"99", ".05", "-1"})
        EXPECT_EQ(Command({"log", Butter, "-m", "b", QString("--quantity=") + quantity}).code,
                  Done);
    EXPECT_EQ(Stored("SELECT sum(QTY) FROM USER_FOODS"), 99 + .05 - 1);
}

TEST_F(LogTest, RefusesAServingThatTheFoodDoesNotHave) {
    Store("INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'Pie')", true);
    ExpectRefused({"23509", "-m", "b", "-s", "B"}, "Pie has no serving B.");
    ExpectRefused({Butter, "-m", "b", "-s", "C"}, "--serving");
}

TEST_F(LogTest, RefusesAnEmptyTermADayAndAMealThatAreNone) {
    ExpectRefused({"", "-m", "b"}, "Please enter a search term.");
    ExpectRefused({Butter, "-m", "tea"}, "\"tea\" is not a meal.");
    ExpectRefused({Butter, "-m", "b", "-d", "2026-02-29"}, "is not a day");
}

TEST_F(LogTest, PrintsFactsAsJsonToTheLastBit) {
    const Run run = Command({"log", Butter, "-s", "B", "-q", "2", "-m", "b", "--json"});
    const QJsonObject logged = Facts(run)["logged"].toObject();
    EXPECT_EQ(logged["calories"].toDouble(), 717.0 / 100 * 14.2 * 2);
    EXPECT_EQ(logged["key"], 1);
    EXPECT_EQ(Facts(run)["date"], "2026-03-02");
    EXPECT_EQ(Facts(run)["meal"], "Breakfast");
}

TEST_F(LogTest, RefusesInOneSentenceWhileTheWindowIsOpen) {
    const RecordsLock window{RecordsFolder(Folder())};
    const Run run = Command({"log", Butter, "-m", "b"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_EQ(run.error.count('\n'), 1);
    EXPECT_EQ(run.out, "");
}

TEST_F(LogTest, WithoutAProfileItSaysSo) {
    Store("DELETE FROM profiles");
    const Run run = Command({"log", Butter, "-m", "b"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("There is no profile in these records."));
}
