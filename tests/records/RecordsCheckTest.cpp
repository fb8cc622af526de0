#include "SnapshotTest.h"

#include "records/RecordsCheck.h"
#include "records/RecordsLock.h"
#include "records/Undo.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "support/HostileRows.h"

#include <QRandomGenerator>

class RecordsCheckTest : public SnapshotTest {
protected:
    static inline const QDate Today{2026, 11, 22};

    QList<Finding> Findings() const { return RecordsCheck(Records(), Today).Findings(); }
    QStringList Lines() const {
        QStringList lines;
        for (const Finding& finding : Findings())
            lines << finding.Line();
        return lines;
    }
    QList<Finding> Repair() const { return RecordsCheck(Records(), Today).Repair(); }
    void ChangeUsers(const char* sql) const { Change(Records().Users(), sql); }
    void ChangeFoods(const char* sql) const { Change(Records().Foods(), sql); }
    /// A logged food without fault.
    void Log(const char* columns = "", const char* values = "") const {
        ChangeUsers(("INSERT INTO USER_FOODS (UID, FoodName, Serving, Meal, UDate, QTY, Calories" +
                     std::string(columns) +
                     ") VALUES (1, 'Oats', '1 cup', 'Lunch', '2026-11-21', 1, 100" + values + ")")
                        .c_str());
    }
    QStringList WhatIsWith(const char* sql) const {
        ChangeUsers(sql);
        return Lines();
    }
};

TEST_F(RecordsCheckTest, DeliveredFilesAreSound) {
    Log();
    AddWeight("2026-11-21", 150);
    AddOwnFood("Pie");
    ChangeFoods("UPDATE FOODS SET Serv_GM_WT_A = 100 WHERE ID > 23508");
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_EQ(RecordsCheck(Records(), Today).Counts().ToJson()["loggedFoods"], 1);
}

TEST_F(RecordsCheckTest, ALineSaysWhatItMeansAndWhatToDo) {
    Log();
    EXPECT_EQ(
        WhatIsWith("UPDATE USER_FOODS SET Meal = 'Brunch'"),
        QStringList("USER_FOODS: rows that belong to a meal that the program does not know: 1 "
                    "(the first has the key 1). They count in the sums of their day, but its "
                    "list does not show them. Look for them in a snapshot (`backups`, "
                    "`restore`)."));
}

TEST_F(RecordsCheckTest, EachFaultOfALoggedFoodIsFound) {
    Log();
    for (const char* fault :
         {"UID = 7", "UID = NULL", "UDate = NULL", "UDate = '2026-02-30'", "UDate = 'today'",
          "UDate = '2026-11-21 10:00:00'", "UDate = '2029-01-01'", "FoodName = ' '", "QTY = 0",
          "QTY = NULL", "QTY = 'some'", "Iron = 'much'", "Iron = x'00'", "Iron = -1",
          "Calories = 9e999", "RecID = 3000000000"}) {
        ChangeUsers("DELETE FROM USER_FOODS");
        Log();
        EXPECT_EQ(WhatIsWith((std::string("UPDATE USER_FOODS SET ") + fault).c_str()).size(), 1)
            << fault;
    }
}

TEST_F(RecordsCheckTest, UnknownAmountsAndAMealThatWasNotChosenAreNoFault) {
    Log();
    EXPECT_EQ(WhatIsWith("UPDATE USER_FOODS SET Iron = NULL, Meal = ''"), QStringList());
    EXPECT_EQ(WhatIsWith("UPDATE USER_FOODS SET Meal = NULL"), QStringList());
}

TEST_F(RecordsCheckTest, EachFaultOfAWeightIsFound) {
    for (const char* values :
         {"(7, '2026-11-21', 150)", "(1, NULL, 150)", "(1, '2026-11-21', -1)",
          "(1, '2026-11-21', 'heavy')", "(1, '2026-11-21', NULL)", "(1, '2026-11-21', 1e7)",
          "(1, '2029-11-21', 150)", "(1, '2026-11-20', 150), (1, '2026-11-20', 151)"}) {
        ChangeUsers("DELETE FROM USER_WEIGHTS");
        EXPECT_EQ(
            WhatIsWith((std::string("INSERT INTO USER_WEIGHTS VALUES ") + values).c_str()).size(),
            1)
            << values;
    }
}

TEST_F(RecordsCheckTest, AWeightThatWasTakenBackIsNoFault) {
    EXPECT_EQ(WhatIsWith("INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-21', 0)"), QStringList());
}

TEST_F(RecordsCheckTest, EachFaultOfAProfileARecipeAndAFoodIsFound) {
    ChangeUsers("INSERT INTO Recipes (RecipeName, RecipeYield) VALUES (NULL, 2), ('Pie', 0);"
                "INSERT INTO Ingredients (RecipeID, Iron) VALUES (1, -1), (9, 1);"
                "INSERT INTO profiles (UserName, age) VALUES ('Anna', 40), (NULL, -1)");
    AddOwnFood("Pie");
    ChangeFoods("UPDATE FOODS SET Calories = 5000 WHERE ID > 23508");
    QStringList found;
    for (const Finding& finding : Findings())
        found << finding.where;
    found.sort();
    EXPECT_EQ(found, (QStringList{"FOODS", "FOODS", "Ingredients", "Ingredients", "Recipes",
                                  "Recipes", "profiles", "profiles", "profiles"}));
}

TEST_F(RecordsCheckTest, WhatHasOneRightAnswerIsRepairedAndCanBeTakenBack) {
    Log();
    ChangeUsers("UPDATE USER_FOODS SET UDate = '2026-11-21 10:00:00';"
                "INSERT INTO USER_WEIGHTS VALUES (1, '2026-11-20', 150), (1, '2026-11-20', 151);"
                "INSERT INTO Ingredients (RecipeID) VALUES (9);"
                "DROP INDEX USER_FOODS_Day");
    ChangeFoods("DROP INDEX FOODS_Name");
    const QStringList before = Rows(Records());
    EXPECT_EQ(Repair().size(), 5);
    EXPECT_EQ(Lines(), QStringList());
    UserDB().Open(Records().Users(), DatabaseKind::Users);
    EXPECT_EQ(Users("SELECT UDate FROM USER_FOODS"), "2026-11-21");
    EXPECT_EQ(Users("SELECT Weight FROM USER_WEIGHTS"), 150) << "the one that the day shows";
    CloseDatabases();
    Undo::Last(Records());
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(RecordsCheckTest, WhatOnlyTheUserKnowsIsNotRepaired) {
    Log();
    ChangeUsers("UPDATE USER_FOODS SET UID = 7");
    const QStringList before = Rows(Records());
    EXPECT_TRUE(Repair().isEmpty());
    EXPECT_EQ(Rows(Records()), before);
    EXPECT_EQ(Lines().size(), 1);
}

TEST_F(RecordsCheckTest, MissingTablesColumnsAndDeliveredRowsAreFound) {
    ChangeUsers("DELETE FROM RDI; ALTER TABLE Recipes DROP COLUMN PrepTime");
    ChangeFoods("DELETE FROM FOODS WHERE ID = 23508");
    const QStringList lines = Lines();
    EXPECT_EQ(lines.filter("Recipes.PrepTime: the column is missing").size(), 1);
    EXPECT_EQ(lines.filter("the last stock food").size(), 1);
    ChangeUsers("DROP TABLE USER_WEIGHTS");
    EXPECT_EQ(Lines().filter("USER_WEIGHTS.").size(), 3);
}

TEST_F(RecordsCheckTest, AnIndexThatDoesNotFitItsTableIsMadeAnew) {
    AddWeight("2026-11-20", 150);
    AddWeight("2026-11-21", 151);
    SpoilIndex();
    ASSERT_FALSE(Findings().isEmpty());
    EXPECT_TRUE(Findings().first().problem.startsWith("damage inside the file"));
    Repair();
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(RecordsCheckTest, APartOfTheIndexOfNamesThatIsMissingIsNamedAndMadeAnew) {
    for (const char* damage :
         {"DROP TABLE FOODS_Trigrams", "DROP TABLE FOODS_Trigrams_data",
          "DROP TRIGGER FOODS_Trigrams_Added", "DELETE FROM FOODS_Trigrams_data"}) {
        ChangeFoods(damage);
        EXPECT_EQ(Lines(),
                  QStringList("FOODS_Trigrams: a part of the index of names is missing or "
                              "damaged. Searches are slow. `check --repair` puts it right."))
            << damage;
        EXPECT_EQ(Repair().size(), 1) << damage;
        EXPECT_EQ(Lines(), QStringList()) << damage;
    }
}

TEST_F(RecordsCheckTest, AnIndexOfNamesThatDoesNotFitTheNamesIsNamedAndMadeAnew) {
    ChangeFoods("UPDATE FOODS_Trigrams_data SET block = (SELECT block FROM FOODS_Trigrams_data "
                "WHERE id > 10 ORDER BY id DESC LIMIT 1) WHERE id = (SELECT max(id) - 40 FROM "
                "FOODS_Trigrams_data)");
    EXPECT_EQ(Lines(), QStringList("FOODS_Trigrams: the index of names does not fit the names. "
                                   "Searches may miss foods. `check --repair` puts it right."));
    EXPECT_EQ(Repair().size(), 1);
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(RecordsCheckTest, AFileFromBeforeTheIndexOfNamesIsSound) {
    BecomeVersionTwo();
    const QByteArray before = Bytes(Records().Foods());
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_TRUE(Bytes(Records().Foods()) == before);
    ChangeFoods("DROP INDEX FOODS_Name");
    EXPECT_EQ(Repair().size(), 1);
    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(RecordsCheckTest, DamageThatKeepsTheProgramFromStartingNamesTheSnapshot) {
    Make();
    Damage(Records().Users());
    const QStringList lines = Lines();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().contains("users.mdb")) << lines.first().toStdString();
    EXPECT_TRUE(lines.first().contains("`restore 1`")) << lines.first().toStdString();
}

TEST_F(RecordsCheckTest, DamageInsideAFileIsFound) {
    for (int i = 0; i < 200; ++i)
        Log();
    Damage(Records().Users(), 12 * 4096);
    EXPECT_FALSE(Findings().isEmpty());
}

TEST_F(RecordsCheckTest, WhileTheWindowIsOpenTheRecordsAreCheckedAndNotRepaired) {
    ChangeUsers("INSERT INTO Ingredients (RecipeID) VALUES (9)");
    const RecordsLock window(Records());
    EXPECT_EQ(Lines().size(), 1);
    EXPECT_EQ(FailureOf([&] { Repair(); }), ErrorNumber::RecordsInUse);
}

TEST_F(RecordsCheckTest, NoRowsMakeTheCheckOrTheRepairFail) {
    QRandomGenerator random{1};
    for (const char* table : {"profiles", "USER_FOODS", "USER_WEIGHTS", "Recipes", "Ingredients"}) {
        SQLite::Database users(Records().Users().toStdString(), SQLite::OPEN_READWRITE);
        const HostileRows rows(users, table, {});
        for (const char* value : HostileRows::Values()) {
            rows.Insert(rows.With(value).last());
            rows.Insert(rows.Random(random));
        }
    }
    EXPECT_FALSE(Findings().isEmpty());
    EXPECT_NO_THROW(Repair());
    for (const Finding& finding : Findings())
        EXPECT_EQ(finding.repair, "") << finding.Line().toStdString();
}
