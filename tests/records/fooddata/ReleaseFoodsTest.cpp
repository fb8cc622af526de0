#include "records/fooddata/FoodDataTest.h"

#include "support/Places.h"

class ReleaseFoodsTest : public FoodDataTest {
protected:
    FoodTally ImportRelease(const QStringList& only = {}) const {
        FoodImport::Options options{Places::Source("/tests/tools/release"), {}, false, {}};
        for (const QString& restriction : only)
            options.filter.Add(restriction);
        return FoodImport::Run(Records(), options);
    }
};

TEST_F(ReleaseFoodsTest, FoodsHaveTheFirstMeasureAndItsAmounts) {
    ImportRelease();
    EXPECT_EQ(Own("sr:01001", "FoodName"), "Butter, salted");
    EXPECT_EQ(Own("sr:01001", "Serv_Desc_A"), "1 cup (227 g)");
    EXPECT_EQ(Own("sr:01001", "Calories"), 717.0 * 227 / 100);
    EXPECT_EQ(Own("sr:01001", "Selenium"), 0.001 * 227 / 100);
}

TEST_F(ReleaseFoodsTest, ASecondImportAddsNothing) {
    const int added = ImportRelease().added;
    EXPECT_GT(added, 10);
    const FoodTally again = ImportRelease();
    EXPECT_EQ(again.added, 0);
    EXPECT_EQ(again.unchanged, added);
}

TEST_F(ReleaseFoodsTest, ALaterDownloadUpdatesTheSameFoods) {
    ImportRelease();
    const int before = OwnFoods();
    Write("sr_legacy_food.csv", {{"fdc_id", "NDB_number"}, {"9900001", "1001"}});
    const FoodTally tally = Import({"type=sr"});
    EXPECT_EQ(tally.updated, 1);
    EXPECT_EQ(OwnFoods(), before);
}

TEST_F(ReleaseFoodsTest, OnlyTheAskedGroupsAndWordsAreTaken) {
    EXPECT_EQ(ImportRelease({"type=branded"}).added, 0);
    EXPECT_GT(ImportRelease({"category=0100"}).added, 0);
    EXPECT_EQ(ImportRelease({"words=butter salted"}).added, 0);
    EXPECT_EQ(ImportRelease({"words=butter salted"}).unchanged, 1);
}
