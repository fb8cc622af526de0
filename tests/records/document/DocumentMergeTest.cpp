#include "DocumentTest.h"

#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "support/Failure.h"

class DocumentMergeTest : public DocumentTest {
protected:
    Place With(const QByteArray& sql) const {
        Place place = Empty();
        place.Fill(sql);
        return place;
    }
};

TEST_F(DocumentMergeTest, KeysAreKeptWhereTheRecordsAreNew) {
    const Place place = Empty();
    place.Import(
        Document(R"("profiles":[{"key":7,"name":"Anna"}],"foods":[{"key":23600,"name":"Pie"}])"));
    EXPECT_EQ(place.Value("SELECT UID FROM profiles"), "7");
    EXPECT_EQ(place.Value("SELECT ID FROM FOODS WHERE FoodName = 'Pie'"), "23600");
}

TEST_F(DocumentMergeTest, AKeyThatIsTakenIsReplacedAndWhatReferredToItFollows) {
    const Place place = With("INSERT INTO profiles (UID, UserName) VALUES (1, 'Ben');"
                             "INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'Soup');"
                             "INSERT INTO Recipes (RecipeID, RecipeName) VALUES (1, 'Stew')");
    place.Import(
        Document(R"("profiles":[{"key":1,"name":"Anna"}],"foods":[{"key":23509,"name":"Pie"}],
        "recipes":[{"key":1,"name":"Cake","ingredients":[{"food":"Egg"}]}],
        "log":[{"profile":1,"foodKey":23509,"food":"Pie"},{"profile":1,"foodKey":1,"food":"Cake"},
               {"profile":1,"foodKey":20000,"food":"Oats"}],
        "weights":[{"profile":1,"date":"2026-03-02","weight":150}])"));
    EXPECT_EQ(place.Value("SELECT UID FROM profiles WHERE UserName = 'Anna'"), "2");
    EXPECT_EQ(place.Value("SELECT group_concat(UID || ':' || ID) FROM USER_FOODS"),
              "2:23510,2:2,2:20000");
    EXPECT_EQ(place.Value("SELECT UID FROM USER_WEIGHTS"), "2");
    EXPECT_EQ(place.Value("SELECT RecipeID FROM Ingredients"), "2");
}

TEST_F(DocumentMergeTest, AKeyThatADeletedRowHadIsNotGivenAgain) {
    const Place place = With("INSERT INTO profiles (UID, UserName) VALUES (5, 'Ben');"
                             "DELETE FROM profiles;"
                             "INSERT INTO USER_WEIGHTS VALUES (5, '2026-03-01', 200)");
    place.Import(Document(R"("profiles":[{"key":5,"name":"Anna"}])"));
    EXPECT_EQ(place.Value("SELECT UID FROM profiles"), "6");
}

TEST_F(DocumentMergeTest, TheLastKeyOfTheDocumentIsNotGivenAgainWhereTheRecordsAreNew) {
    const Place place = Empty();
    place.Import(
        Document(R"("lastKeys":{"profiles":9,"recipes":4},"profiles":[{"key":2,"name":"Anna"}])"));
    place.Fill("INSERT INTO profiles (UserName) VALUES ('Ben');"
               "INSERT INTO Recipes (RecipeName) VALUES ('Pie')");
    EXPECT_EQ(place.Value("SELECT max(UID) FROM profiles"), "10");
    EXPECT_EQ(place.Value("SELECT max(RecipeID) FROM Recipes"), "5");
}

TEST_F(DocumentMergeTest, AProfileIsTheSameByItsNameAndStaysAsItIs) {
    const Place place = With("INSERT INTO profiles (UID, UserName, age) VALUES (3, 'ÉMILE', 40)");
    const ImportReport report =
        place.Import(Document(R"("profiles":[{"key":1,"name":"Émile","age":41}],
                    "weights":[{"profile":1,"date":"2026-03-02","weight":150}])"));
    EXPECT_EQ(report.counts.at("profiles").added, 0);
    ASSERT_EQ(report.kept.size(), 1U);
    EXPECT_TRUE(report.kept[0].contains("ÉMILE")) << report.kept[0].toStdString();
    EXPECT_EQ(place.Value("SELECT age FROM profiles"), "40.0");
    EXPECT_EQ(place.Value("SELECT UID FROM USER_WEIGHTS"), "3");
}

TEST_F(DocumentMergeTest, OfTwoEqualProfilesEachFindsItsOwnLogAgain) {
    const Place place = With("INSERT INTO profiles (UID, UserName, age) VALUES (3, 'Anna', 40)");
    const QByteArray document =
        Document(R"("profiles":[{"key":1,"name":"ANNA"},{"key":2,"name":"ANNA"}],
                    "log":[{"profile":1,"food":"Pie"},{"profile":2,"food":"Soup"}])");
    EXPECT_EQ(Added(place.Import(document)), 3);
    const QByteArray merged = place.Export();
    EXPECT_EQ(Added(place.Import(document)), 0);
    EXPECT_EQ(place.Export(), merged);
}

TEST_F(DocumentMergeTest, TheWeightOfADayThatIsThereStaysAndIsTold) {
    const Place place = With("INSERT INTO profiles (UID, UserName, flagsodium, flagcholesterol) "
                             "VALUES (1, 'Anna', NULL, NULL);"
                             "INSERT INTO USER_WEIGHTS VALUES (1, '2026-03-02', 150)");
    const ImportReport report = place.Import(Document(R"("profiles":[{"key":1,"name":"Anna"}],
                    "weights":[{"profile":1,"date":"2026-03-02","weight":151},
                               {"profile":1,"date":"2026-03-03","weight":152}])"));
    EXPECT_EQ(report.counts.at("weights").added, 1);
    ASSERT_EQ(report.kept.size(), 1U);
    EXPECT_EQ(report.kept[0].toStdString(),
              "Anna weighs 150.0 on 2026-03-02; the file says 151.0. It stays as it is.");
}

TEST_F(DocumentMergeTest, WhatADeletedRecipeLeftDoesNotBecomeANewRecipes) {
    const Place place = With("INSERT INTO Recipes (RecipeID, RecipeName) VALUES (1, 'Stew');"
                             "INSERT INTO Ingredients (RecipeID, FoodName) VALUES (2, 'Salt')");
    place.Import(Document(R"("recipes":[{"key":1,"name":"Pie"},{"key":2,"name":"Cake"}])"));
    EXPECT_EQ(
        place.Value(
            "SELECT group_concat(RecipeID) FROM (SELECT RecipeID FROM Recipes ORDER BY RecipeID)"),
        "1,3,4");
}

TEST_F(DocumentMergeTest, AnEntryIsAddedAsOftenAsItIsMissing) {
    const QByteArray entry = R"({"profile":1,"date":"2026-03-02","food":"Oats","amounts":[5]})";
    const Place place = Empty();
    place.Import(Document(R"("profiles":[{"key":1,"name":"Anna"}],"log":[)" + entry + ']'));
    const ImportReport report =
        place.Import(Document(R"("profiles":[{"key":1,"name":"Anna"}],"log":[)" + entry + ',' +
                              entry + ',' + entry + ']'));
    EXPECT_EQ(report.counts.at("log").there, 1);
    EXPECT_EQ(report.counts.at("log").added, 2);
    EXPECT_EQ(place.Value("SELECT count(*) FROM USER_FOODS"), "3");
}

TEST_F(DocumentMergeTest, ARecipeWithOtherIngredientsIsAnotherRecipe) {
    const Place place = Empty();
    place.Import(Document(R"("recipes":[{"key":1,"name":"Pie","ingredients":[{"food":"Egg"}]}])"));
    const ImportReport report = place.Import(Document(
        R"("recipes":[{"key":1,"name":"Pie","ingredients":[{"food":"Egg"},{"food":"Salt"}]}])"));
    EXPECT_EQ(report.counts.at("recipes").added, 1);
    EXPECT_EQ(place.Value("SELECT count(*) FROM Ingredients WHERE RecipeID = 2"), "2");
}

TEST_F(DocumentMergeTest, RowsOfAProfileThatTheFileDoesNotHoldAreNotGivenToSomebodyElse) {
    const Place place = With("INSERT INTO profiles (UID, UserName) VALUES (1, 'Ben')");
    const ImportReport report =
        place.Import(Document(R"("log":[{"profile":1,"food":"Pie"},{"profile":1,"food":"Soup"}],
                                 "looseIngredients":[{"recipe":4,"food":"Egg"}])"));
    ASSERT_EQ(report.refused.size(), 1U);
    EXPECT_TRUE(report.refused[0].startsWith("log: 2 left out."))
        << report.refused[0].toStdString();
    EXPECT_EQ(place.Value("SELECT count(*) FROM USER_FOODS"), "0");
    EXPECT_EQ(place.Value("SELECT RecipeID FROM Ingredients"), "4");
}

TEST_F(DocumentMergeTest, StockFoodsAreNeverReplaced) {
    const Place place = Empty();
    place.Import(Document(R"("foods":[{"key":20000,"name":"Other"}])"));
    EXPECT_EQ(place.Value("SELECT FoodName FROM FOODS WHERE ID = 20000"), "Oats");
    EXPECT_EQ(place.Value("SELECT ID FROM FOODS WHERE FoodName = 'Other'"), "23509");
}

TEST_F(DocumentMergeTest, ADryRunTellsTheSameAndChangesNothing) {
    const Place place = Empty();
    const QByteArray before = place.Export();
    const ImportReport report =
        place.Import(Document(R"("profiles":[{"key":1,"name":"Anna"}])"), {.dryRun = true});
    EXPECT_EQ(report.counts.at("profiles").added, 1);
    EXPECT_EQ(place.Export(), before);
}

TEST_F(DocumentMergeTest, SettingsAreTakenWhereThereIsNoProfile) {
    SetRegValue(Settings::Fast, QStringLiteral("True"));
    SetRegValue(Settings::Installation, QStringLiteral("here"));
    const Place place = Empty();
    const QByteArray document =
        Document(R"("settings":{"LIMIT50":"False","INSTALLATION":"there","NOSUCH":"1"},
                    "profiles":[{"key":1,"name":"Anna"}])");
    EXPECT_TRUE(place.Import(document).settings);
    EXPECT_EQ(GetRegValue(Settings::Limit50), "False");
    EXPECT_EQ(GetRegValue(Settings::Fast), "");
    EXPECT_EQ(GetRegValue(Settings::Installation), "here");
    EXPECT_EQ(GetRegValue(QStringLiteral("NOSUCH")), "");
}

TEST_F(DocumentMergeTest, SettingsStayWhereThereAreProfilesUnlessTheyAreAskedFor) {
    const Place place = With("INSERT INTO profiles (UID, UserName) VALUES (1, 'Anna')");
    const QByteArray document = Document(R"("settings":{"LIMIT50":"False"})");
    EXPECT_FALSE(place.Import(document).settings);
    EXPECT_EQ(GetRegValue(Settings::Limit50), "");
    EXPECT_TRUE(place.Import(document, {.settings = true}).settings);
    EXPECT_EQ(GetRegValue(Settings::Limit50), "False");
}

TEST_F(DocumentMergeTest, FewerNutrientsInAnotherOrderGoToTheirColumns) {
    const Place place = Empty();
    place.Import(R"({"format":"halvane-records","version":1,
        "nutrients":[{"name":"Zinc","unit":"mg"},{"name":"Calories","unit":"kcal"}],
        "log":[{"profile":1,"amounts":[3,400]}]})");
    EXPECT_EQ(
        place.Value("SELECT Zinc || ' ' || Calories || ' ' || ifnull(Iron, '-') FROM USER_FOODS"),
        "3.0 400.0 -");
}
