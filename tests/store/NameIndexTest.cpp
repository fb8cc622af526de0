#include "StoreTest.h"
#include "VersionOne.h"

#include "store/NameIndex.h"
#include "store/Schema.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

class NameIndexTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        AddFood(16097, "Butter, salted");
        AddFood(23509, "Butter of mine");
    }
    /// The keys of the names with this trigram, as the index says.
    QStringList Keys(const char* trigram) {
        return Column(foods_, QStringLiteral("SELECT rowid FROM FOODS_Trigrams WHERE "
                                             "FOODS_Trigrams MATCH '\"%1\"' ORDER BY rowid")
                                  .arg(QLatin1String(trigram)));
    }
    bool Fits() { return NameIndex::Answers(foods_.Raw()) && NameIndex::Fits(foods_.Raw()); }
    void Reopen() { foods_.Open(FoodsFile(), DatabaseKind::Foods); }
};

TEST_F(NameIndexTest, ItFollowsEachChangeOfAName) {
    EXPECT_EQ(Keys("but"), QStringList({"16097", "23509"}));
    Run(foods_, "UPDATE FOODS SET FoodName = 'Egg of mine' WHERE ID = 23509");
    EXPECT_EQ(Keys("but"), QStringList({"16097"}));
    EXPECT_EQ(Keys("egg"), QStringList({"23509"}));
    Run(foods_, "UPDATE FOODS SET ID = 23510 WHERE ID = 23509");
    EXPECT_EQ(Keys("egg"), QStringList({"23510"}));
    Run(foods_, "UPDATE FOODS SET FoodName = NULL WHERE ID = 23510");
    EXPECT_EQ(Keys("egg"), QStringList());
    Run(foods_, "UPDATE FOODS SET FoodName = x'656767', Calories = 3 WHERE ID = 23510");
    EXPECT_EQ(Keys("egg"), QStringList({"23510"}));
    Run(foods_, "DELETE FROM FOODS WHERE ID = 23510");
    EXPECT_EQ(Keys("egg"), QStringList());
    EXPECT_TRUE(Fits());
}

TEST_F(NameIndexTest, AChangeThatIsTakenBackLeavesItAsItWas) {
    Run(foods_, "BEGIN");
    AddFood(23510, "Egg of mine");
    EXPECT_EQ(Keys("egg"), QStringList({"23510"}));
    Run(foods_, "ROLLBACK");
    EXPECT_EQ(Keys("egg"), QStringList());
    EXPECT_TRUE(Fits());
}

TEST_F(NameIndexTest, AChangeFromAFileThatIsOpenTogetherReachesIt) {
    foods_.OpenTogether(FoodsFile(), DatabaseKind::Foods, users_);
    Run(foods_, "INSERT INTO FOODS (ID, FoodName) VALUES (23510, 'Egg of mine')");
    EXPECT_TRUE(NameIndex::Answers(foods_.Raw()));
    Reopen();
    EXPECT_EQ(Keys("egg"), QStringList({"23510"}));
    EXPECT_TRUE(Fits());
}

TEST_F(NameIndexTest, AFileFromBeforeItGetsIt) {
    foods_.Close();
    ASSERT_TRUE(QFile::remove(FoodsFile()));
    VersionOne::MakeFoods(FoodsFile());
    Reopen();
    EXPECT_TRUE(Fits());
}

TEST_F(NameIndexTest, ItDoesNotFitWhereANameWasChangedPastIt) {
    EXPECT_TRUE(Fits());
    Run(foods_, "DROP TRIGGER FOODS_Trigrams_Changed");
    Run(foods_, "UPDATE FOODS SET FoodName = 'Egg' WHERE ID = 23509");
    EXPECT_FALSE(NameIndex::Fits(foods_.Raw()));
    Run(foods_, NameIndex::Refill);
    EXPECT_TRUE(NameIndex::Fits(foods_.Raw()));
}

TEST_F(NameIndexTest, WhateverIsLeftOfItOpeningMakesItAnew) {
    for (const char* damage :
         {"DROP TABLE FOODS_Trigrams", "DROP TABLE FOODS_Trigrams_data",
          "DROP TABLE FOODS_Trigrams_idx", "DROP TABLE FOODS_Trigrams_config",
          "DELETE FROM FOODS_Trigrams_data", "DELETE FROM FOODS_Trigrams_config",
          "DELETE FROM FOODS_Trigrams_data WHERE id > 10",
          "UPDATE FOODS_Trigrams_data SET block = x'00'", "DROP TRIGGER FOODS_Trigrams_Added",
          "DROP TRIGGER FOODS_Trigrams_Removed", "DROP TRIGGER FOODS_Trigrams_Changed",
          "DROP INDEX FOODS_Unindexed"}) {
        SCOPED_TRACE(damage);
        foods_.Close();
        SQLite::Database(FoodsFile().toStdString(), SQLite::OPEN_READWRITE).exec(damage);
        Reopen();
        EXPECT_TRUE(Fits());
        AddFood(23510, "Egg of mine");
        EXPECT_EQ(Keys("egg"), QStringList({"23510"}));
        Run(foods_, "DELETE FROM FOODS WHERE ID = 23510");
        EXPECT_TRUE(Fits());
    }
}

TEST_F(NameIndexTest, AFoodWhoseNameIsNoPlainTextDoesNotMakeItAnewAtEachOpening) {
    for (const char* name : {"NULL", "'a'", "x'ff00ff00'", "'äöü'", "''", "'\"\"\"'"}) {
        SCOPED_TRACE(name);
        Run(foods_, QStringLiteral("REPLACE INTO FOODS (ID, FoodName) VALUES (23599, %1)")
                        .arg(QLatin1String(name)));
        EXPECT_TRUE(NameIndex::Answers(foods_.Raw()));
        Run(foods_, "DELETE FROM FOODS WHERE ID = 23599");
    }
}
