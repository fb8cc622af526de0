#include "UseTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "runtime/Convert.h"
#include "support/Places.h"

#include <QFile>
#include <QJsonArray>

class WhyTest : public UseTest {
protected:
    void SetUp() override {
        UseTest::SetUp();
        ASSERT_TRUE(QFile::copy(Places::Source("/data/food-sources.json"),
                                Folder() + "/food-sources.json"));
    }
    /// What is printed has the line; blanks count once.
    static void ExpectLine(const Run& run, const QString& line) {
        QStringList lines;
        for (const QString& printed : run.out.split('\n'))
            lines << printed.simplified();
        EXPECT_TRUE(lines.contains(line)) << line.toStdString() << "\n" << run.out.toStdString();
    }
    QJsonObject Amount(const QStringList& arguments) {
        return Facts(Command(QStringList{"why", "--json"} + arguments))["amounts"][0].toObject();
    }
};

TEST_F(WhyTest, AStockFoodNamesFileLineAndHashOfItsRelease) {
    const Run run = Command({"why", Butter});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    ExpectLine(run, "Food 01001 of the USDA National Nutrient Database for Standard Reference, "
                    "release 21.");
    ExpectLine(run, "Amounts in 100 grams: ABBREV.txt, line 412 (SHA-256 61a249706bc5748de7f58fa3"
                    "ea4369087288b1cc02ca7428d175eef95b0b0157)");
    ExpectLine(run, "Serving B: 1 tbsp is 14.2 grams: fields 49 and 50");
    ExpectLine(run, "All figures are those of the release.");
    ExpectLine(run, "Calories 717 kcal field 4");
    EXPECT_EQ(run.out.count('\n'), 8 + 31);
}

TEST_F(WhyTest, OneNutrientShowsItsConversionAndItsServings) {
    const Run run = Command({"why", Butter, "selenium"});
    ExpectLine(run, "Selenium 0.001 mg field 20: 1 mcg / 1000");
    ExpectLine(run, "1 tbsp: 0.001 / 100 * 14.2 = 0.000142 mg");
    EXPECT_FALSE(run.out.contains("Calories"));
}

TEST_F(WhyTest, AnUnknownAmountNamesTheEmptyField) {
    ExpectLine(Command({"why", "Cheese, caraway", "Vit. E"}), "Vit. E unknown field 41 is empty");
    EXPECT_TRUE(Amount({"Cheese, caraway", "VitaminE"})["in100Grams"].isNull());
}

TEST_F(WhyTest, TotalFolateStandsInWhereTheEquivalentsAreEmpty) {
    const Run run = Command({"why", "HORMEL SPAM, Luncheon Meat, pork with ham, minced, canned"});
    EXPECT_TRUE(run.out.contains("WEIGHT.txt, line")) << run.out.toStdString();
    const QJsonObject butter = Amount({Butter, "folate"});
    EXPECT_EQ(butter["field"], 30);
}

TEST_F(WhyTest, AChangedRowIsNotSaidToBeTheRelease) {
    Store("UPDATE FOODS SET Zinc = 7 WHERE ID = 16096", true);
    EXPECT_TRUE(Command({"why", Butter}).out.contains("The figures are not those of the release"));
    EXPECT_EQ(Facts(Command({"why", Butter, "--json"}))["asReleased"], false);
}

TEST_F(WhyTest, AFoodThatTheSourcesDoNotHaveIsTold) {
    Store("UPDATE FOODS SET NDB_No = '99999' WHERE ID = 16096", true);
    const Run run = Command({"why", Butter});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.contains("The list of sources does not have this food"));
}

TEST_F(WhyTest, PrintsFactsAsJson) {
    const QJsonObject facts = Facts(Command({"why", Butter, "selenium", "--json"}));
    EXPECT_EQ(facts["number"], "01001");
    EXPECT_EQ(facts["line"], 412);
    EXPECT_EQ(facts["asReleased"], true);
    const QJsonObject selenium = facts["amounts"][0].toObject();
    EXPECT_EQ(selenium["in100Grams"].toDouble(), 0.001);
    EXPECT_EQ(selenium["released"].toDouble(), 1);
    EXPECT_EQ(selenium["releasedUnit"], "mcg");
}

TEST_F(WhyTest, AnOwnFoodNamesItsRow) {
    Store("INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_GM_WT_A, Calories, NDB_No) VALUES "
          "(23509, 'My pie', '1 slice', 100, 321, 'fdc:7')",
          true);
    const Run run = Command({"why", "my pie"});
    ExpectLine(run, "A food of your own: row 23509 of FOODS in foods.mdb.");
    ExpectLine(run, "Amounts in one serving: 1 slice");
    ExpectLine(run, "It was imported as fdc:7.");
    ExpectLine(run, "Calories 321 kcal as the row has it");
    ExpectLine(run, "Zinc unknown the row has none");
}

TEST_F(WhyTest, ARecipeNamesItsIngredients) {
    Store("INSERT INTO Recipes (RecipeName, ServingName) VALUES ('Soup', '1 bowl');"
          "INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, Calories) VALUES "
          "(1, 'Pea', '1 cup', 2, 80), (1, 'Salt', '1 tsp', 1, NULL)");
    const Run run = Command({"why", "recipe:1", "calories"});
    ExpectLine(run, "Calories 80 kcal the sum of the ingredients");
    ExpectLine(run, "80 kcal: Pea, 1 cup (x 2)");
    EXPECT_EQ(Amount({"recipe:1", "calories"})["ingredients"].toArray().size(), 2);
}

TEST_F(WhyTest, AnEntryShowsItsArithmetic) {
    Command({"log", Butter, "-s", "B", "-q", "2", "-m", "lunch"});
    const Run run = Command({"why", "log:1", "sodium"});
    ExpectLine(run, "Logged on 2026-03-02 for Lunch.");
    ExpectLine(run, "From food:16096: amount in 100 grams / 100 * grams of serving B * quantity.");
    ExpectLine(run, "Sodium " + DecimalText(576.0 / 100 * 14.2 * 2) + " mg = 576 / 100 * 14.2 * 2");
    EXPECT_EQ(Amount({"log:1", "sodium"})["logged"].toDouble(), 576.0 / 100 * 14.2 * 2);
}

TEST_F(WhyTest, AnEntryWhoseFoodHasChangedSaysSo) {
    Command({"log", Butter, "-s", "B", "-q", "2", "-m", "lunch"});
    Store("UPDATE FOODS SET sodium = 1000, Zinc = NULL WHERE ID = 16096", true);
    ExpectLine(Command({"why", "log:1", "sodium"}),
               "Sodium " + DecimalText(576.0 / 100 * 14.2 * 2) +
                   " mg 1000 / 100 * 14.2 * 2 is 284 today: the food has changed since");
}

TEST_F(WhyTest, AnEntryWhoseQuantityWasChangedLaterIsStillTraced) {
    Command({"log", Butter, "--meal", "Lunch"});
    Store("UPDATE USER_FOODS SET Calories = Calories * 1.0000000000000002");
    const Run run = Command({"why", "log:1", "calories"});
    EXPECT_FALSE(run.out.contains("has changed since")) << run.out.toStdString();
}

TEST_F(WhyTest, AnUnknownAmountOfAFoodCountsAs0InAnEntry) {
    Command({"log", "Cheese, caraway", "-m", "lunch"});
    ExpectLine(Command({"why", "log:1", "vit. e"}), "Vit. E 0 mg unknown in the food, counts as 0");
}

TEST_F(WhyTest, AnEntryOfARecipeIsTracedThoughAFoodHasTheSameKey) {
    Store("INSERT INTO Recipes (RecipeID, RecipeName, ServingName) VALUES (16096, 'Soup', 'bowl');"
          "INSERT INTO Ingredients (RecipeID, Calories) VALUES (16096, 80)");
    Command({"log", "recipe:16096", "-q", "0.5", "-m", "lunch"});
    const Run run = Command({"why", "log:1", "calories"});
    ExpectLine(run, "From the sums of recipe:16096, times the quantity.");
    ExpectLine(run, "Calories 40 kcal = 80 / 100 * 100 * 0.5");
}

TEST_F(WhyTest, AnEntryWhoseFoodIsGoneKeepsItsAmounts) {
    Command({"log", Butter, "-m", "lunch"});
    Store("DELETE FROM FOODS WHERE ID = 16096", true);
    const Run run = Command({"why", "log:1", "calories"});
    EXPECT_TRUE(run.out.contains("No food and no recipe has the key 16096"))
        << run.out.toStdString();
    ExpectLine(run, "Calories 1627.59 kcal");
    EXPECT_TRUE(Facts(Command({"why", "log:1", "--json"}))["from"].isNull());
}

TEST_F(WhyTest, RefusesWhatIsNoNutrientNoEntryAndNoFood) {
    const Run run = Command({"why", Butter, "joy"});
    EXPECT_EQ(run.code, Usage);
    EXPECT_TRUE(run.error.contains("\"joy\" is not a nutrient. Write one of: Calories, "));
    EXPECT_EQ(Command({"why"}).code, Usage);
    EXPECT_EQ(Command({"why", ""}).code, Usage);
    EXPECT_EQ(Command({"why", "xyzzy"}).code, Found);
    EXPECT_EQ(Command({"why", "log:7"}).code, Cannot);
    EXPECT_TRUE(Command({"why", "log:7"}).error.contains("There is no entry log:7."));
}

TEST_F(WhyTest, AnswersWhileTheWindowIsOpen) {
    const RecordsLock window{RecordsFolder(Folder())};
    EXPECT_EQ(Command({"why", Butter}).code, Done);
}

TEST_F(WhyTest, WithoutTheListOfSourcesItSaysWhichFileIsMissing) {
    QFile::remove(Folder() + "/food-sources.json");
    const Run run = Command({"why", Butter});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("food-sources.json"));
}
