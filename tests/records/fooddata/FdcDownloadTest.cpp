#include "records/fooddata/FoodDataTest.h"

#include "foods/CustomFoods.h"
#include "foods/FoodSearch.h"
#include "foods/SearchTerms.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"

#include <QDir>

class FdcDownloadTest : public FoodDataTest {
protected:
    static constexpr auto Oats = "sr:01999";
    static constexpr auto Beans = "foundation:11999";
    static constexpr auto Porridge = "survey:56999999";
    static constexpr auto Crisps = "gtin:00099999000017";
};

TEST_F(FdcDownloadTest, FoodsOfEveryKindBecomeOwnFoods) {
    const FoodTally tally = Import();
    EXPECT_EQ(tally.added, 4);
    EXPECT_TRUE(tally.Refusals().isEmpty());
    EXPECT_EQ(OwnFoods(), 4);
    EXPECT_EQ(Own(Oats, "FoodName"), "Oats, rolled, invented");
    EXPECT_EQ(Own(Crisps, "FoodName"),
              QStringLiteral("CRISPS 8\u201D BAG, INVENTED, Invented Foods Inc."));
}

TEST_F(FdcDownloadTest, TheFirstMeasureIsTheServingAndAmountsAreOfIt) {
    Import();
    EXPECT_EQ(Own(Oats, "Serv_Desc_A"), "1 cup, dry (81 g)");
    EXPECT_EQ(Own(Oats, "Calories"), 379.0 * 81 / 100);
    EXPECT_EQ(Own(Oats, "Serv_GM_WT_A"), 100);
    EXPECT_EQ(Own(Beans, "Serv_Desc_A"), QStringLiteral("1 cup, pieces of about 1\u201D (100 g)"));
    EXPECT_EQ(Own(Porridge, "Serv_Desc_A"), "1 cup, cooked (234 g)");
    EXPECT_EQ(Own(Crisps, "Serv_Desc_A"), "1 oz (28 g)");
}

TEST_F(FdcDownloadTest, SeleniumIsConvertedAndWhatIsNotThereStaysUnknown) {
    Import();
    EXPECT_EQ(Own(Oats, "Selenium"), 28.9 / 1000 * 81 / 100);
    EXPECT_TRUE(Own(Oats, "VitaminC").isNull());
    EXPECT_TRUE(Own(Crisps, "Selenium").isNull());
}

TEST_F(FdcDownloadTest, AStatedZeroIsZeroAndAnEmptyAmountUnknown) {
    AddAmount("9900001", "1079", "0");
    AddAmount("9900001", "1162", "");
    Import();
    EXPECT_EQ(Own(Oats, "fiber"), 0);
    EXPECT_TRUE(Own(Oats, "VitaminC").isNull());
}

TEST_F(FdcDownloadTest, TheSurveyWritesNumbersWhereOthersHaveKeys) {
    Import();
    EXPECT_EQ(Own(Porridge, "Calories"), 62.0 * 234 / 100);
}

TEST_F(FdcDownloadTest, EnergyIsTakenInAFixedOrder) {
    AddAmount("9900002", "1062", "418.4");
    Import();
    EXPECT_EQ(Own(Beans, "Calories"), 418.4 / 4.184);
    AddAmount("9900002", "2047", "31");
    Import();
    EXPECT_EQ(Own(Beans, "Calories"), 31);
    AddAmount("9900002", "2048", "39");
    Import();
    EXPECT_EQ(Own(Beans, "Calories"), 39);
    AddAmount("9900002", "1008", "35");
    EXPECT_FALSE(Import().Notes().contains("energy was converted from kJ"));
    EXPECT_EQ(Own(Beans, "Calories"), 35);
}

TEST_F(FdcDownloadTest, VitaminAIsCalculatedFromItsPartsAndSaidSo) {
    AddAmount("9900002", "1105", "3");
    AddAmount("9900002", "1107", "6");
    AddAmount("9900002", "1108", "12");
    const FoodTally tally = Import();
    EXPECT_EQ(Own(Beans, "VitaminA"), 3 / .3 + 6 / .6 + 12 / 1.2);
    EXPECT_EQ(tally.Notes().value("vitamin A was calculated from retinol and carotenes"), 1);
}

TEST_F(FdcDownloadTest, CarbohydratesBelowZeroBecomeZeroAndASumOfZeroIsUnknown) {
    AddAmount("9900001", "1050", "0");
    Write("food_nutrient.csv", {{"id", "fdc_id", "nutrient_id", "amount"},
                                {"1", "9900002", "1005", "-0.43"},
                                {"2", "9900001", "1050", "0"},
                                {"3", "9900001", "1008", "1"}});
    Import({"type=foundation", "type=sr"});
    EXPECT_EQ(Own(Beans, "carbs"), 0);
    EXPECT_TRUE(Own(Oats, "carbs").isNull());
}

TEST_F(FdcDownloadTest, ASecondImportAddsNothing) {
    Import();
    const FoodTally again = Import();
    EXPECT_EQ(again.added, 0);
    EXPECT_EQ(again.updated, 0);
    EXPECT_EQ(again.unchanged, 4);
    EXPECT_EQ(OwnFoods(), 4);
}

TEST_F(FdcDownloadTest, ANewerDownloadUpdatesTheFoodUnderItsKey) {
    Import();
    const QVariant key = Own(Crisps, "ID");
    Add("food.csv", {"9900900", "branded_food", "CRISPS, NEW NAME", "", "2026-10-30"});
    Add("branded_food.csv", {"9900900", "Invented Foods Inc.", "", "099999000017", "30", "GRM", "",
                             "Chips", "LI", "", "", ""});
    AddAmount("9900900", "1008", "500");
    const FoodTally tally = Import();
    EXPECT_EQ(tally.added, 0);
    EXPECT_EQ(tally.updated, 1);
    EXPECT_EQ(tally.Notes().value("earlier publications of a food were left"), 1);
    EXPECT_EQ(Own(Crisps, "ID"), key);
    EXPECT_EQ(Own(Crisps, "FoodName"), "CRISPS, NEW NAME, Invented Foods Inc.");
    EXPECT_EQ(Own(Crisps, "Calories"), 500.0 * 30 / 100);
}

TEST_F(FdcDownloadTest, AFoodThatWasEditedOnTheScreenKeepsItsNumber) {
    Import();
    {
        RecordsChange change(Records());
        const qint32 key = CustomFoods::HighestKey();
        CustomFood food = CustomFoods::Read(key);
        food.name = "Mine";
        CustomFoods::Save(key, food);
        change.Commit();
    }
    EXPECT_EQ(Import().added, 0);
}

TEST_F(FdcDownloadTest, DiscontinuedFoodsAreLeft) {
    Add("food.csv", {"9900042", "branded_food", "SUGAR", "", "2026-04-30"});
    Add("branded_food.csv", {"9900042", "Other", "", "12345678905", "4.0", "GRM", "1 tsp", "Sugars",
                             "LI", "", "", "2025-01-01"});
    EXPECT_EQ(Import().Notes().value("discontinued foods were left"), 1);
    EXPECT_EQ(OwnFoods(), 4);
}

TEST_F(FdcDownloadTest, LiquidsHaveServingsInMillilitres) {
    Add("food.csv", {"9900041", "branded_food", "MILK", "", "2026-04-30"});
    Add("branded_food.csv", {"9900041", "Dairy", "", "99999000024", "240.0", "MLT", "1 cup", "Milk",
                             "GDSN", "", "", ""});
    AddAmount("9900041", "1008", "50");
    Import();
    EXPECT_EQ(Own("gtin:00099999000024", "Serv_Desc_A"), "1 cup (240 ml)");
    EXPECT_EQ(Own("gtin:00099999000024", "Calories"), 120);
}

TEST_F(FdcDownloadTest, AFoodWithoutAServingGetsOneHundredGrams) {
    Add("food.csv", {"9900043", "branded_food", "FLOUR", "", "2026-04-30"});
    Add("branded_food.csv",
        {"9900043", "Mill", "", "5", "", "", "Amount/serving", "Flour", "LI", "", "", ""});
    AddAmount("9900043", "1008", "350");
    EXPECT_EQ(Import().Notes().value("foods without a serving in g or ml got 100 g"), 1);
    EXPECT_EQ(Own("gtin:00000000000005", "Serv_Desc_A"), "100 g");
    EXPECT_EQ(Own("gtin:00000000000005", "Calories"), 350);
}

TEST_F(FdcDownloadTest, ImpossibleAmountsOfALabelAreRefusedAndRoundedOnesAreNot) {
    AddAmount("9900004", "1004", "230");
    const FoodTally tally = Import();
    ASSERT_EQ(tally.Refusals().size(), 1);
    EXPECT_EQ(tally.Refusals()[0].place, "food.csv:5");
    EXPECT_EQ(tally.Refusals()[0].reason, "no food has 230 g of Total Fat in 100 g");
    EXPECT_EQ(tally.added, 3);
}

TEST_F(FdcDownloadTest, ARoundedLabelMayBeSlightlyAboveWhatIsPossible) {
    Add("food.csv", {"9900044", "branded_food", "OIL", "", "2026-04-30"});
    Add("branded_food.csv",
        {"9900044", "Mill", "", "6", "14", "g", "1 Tbsp", "Oils", "LI", "", "", ""});
    AddAmount("9900044", "1008", "929");
    AddAmount("9900044", "1004", "100");
    EXPECT_TRUE(Import().Refusals().isEmpty());
}

TEST_F(FdcDownloadTest, AFoodWithoutAnyAmountIsRefused) {
    Add("food.csv", {"9900050", "foundation_food", "Nothing known", "11", "2026-04-30"});
    Add("foundation_food.csv", {"9900050", "11998", ""});
    const FoodTally tally = Import();
    ASSERT_EQ(tally.Refusals().size(), 1);
    EXPECT_EQ(tally.Refusals()[0].reason, "not one of its amounts is known");
    EXPECT_EQ(tally.RefusalTable(), "place,food,reason\r\nfood.csv:7,Nothing known,"
                                    "not one of its amounts is known\r\n");
}

TEST_F(FdcDownloadTest, AnEndlessNameIsRefused) {
    Add("food.csv", {"9900060", "sr_legacy_food", QString(2000, 'x'), "20", "2019-04-01"});
    AddAmount("9900060", "1008", "1");
    const FoodTally tally = Import();
    ASSERT_EQ(tally.Refusals().size(), 1);
    EXPECT_EQ(tally.Refusals()[0].reason, "its name or serving has more than 1,000 characters");
}

TEST_F(FdcDownloadTest, FoundationFoodsWithoutAnEntryAreEarlierPublications) {
    Add("food.csv", {"9900021", "foundation_food", "Beans, old", "11", "2020-04-30"});
    AddAmount("9900021", "1008", "1");
    EXPECT_EQ(Import().Notes().value("earlier publications of a food were left"), 1);
}

TEST_F(FdcDownloadTest, OnlyTheAskedFoodsAreTaken) {
    EXPECT_EQ(Import({"type=branded"}, true).added, 1);
    EXPECT_EQ(Import({"type=branded", "type=sr"}, true).added, 2);
    EXPECT_EQ(Import({"category=cereal grains and pasta"}, true).added, 1);
    EXPECT_EQ(Import({"category=Chips, Pretzels & Snacks"}, true).added, 1);
    EXPECT_EQ(Import({"words=beans green"}, true).added, 1);
    EXPECT_EQ(Import({"words=beans oats"}, true).added, 0);
    EXPECT_EQ(Import({"words=beans", "words=oats"}, true).added, 2);
    EXPECT_EQ(Import({"words=beans", "type=sr"}, true).added, 0);
}

TEST_F(FdcDownloadTest, ADryRunTellsTheSameAndChangesNothing) {
    EXPECT_EQ(Import({}, true).added, 4);
    EXPECT_EQ(OwnFoods(), 0);
}

TEST_F(FdcDownloadTest, TheFoodsAreFoundByTheSearch) {
    Import();
    const RecordsReading reading(Records());
    const FoodList found = FoodSearch::Find(SearchTerms("oats invented"), {true, true, true});
    ASSERT_EQ(found.Count(), 1);
    EXPECT_GT(found.Item(1).ID, 23508);
}

TEST_F(FdcDownloadTest, FilesMayStandInAFolderOfTheDownload) {
    QDir folder(Download());
    ASSERT_TRUE(folder.mkdir("FoodData_Central"));
    for (const QString& name : folder.entryList(QDir::Files))
        ASSERT_TRUE(folder.rename(name, "FoodData_Central/" + name));
    EXPECT_EQ(Import().added, 4);
}

TEST_F(FdcDownloadTest, ColumnsMayStandInAnyOrder) {
    Write("sr_legacy_food.csv", {{"NDB_number", "more", "fdc_id"}, {"1999", "", "9900001"}});
    Import();
    EXPECT_EQ(Own(Oats, "FoodName"), "Oats, rolled, invented");
}

TEST_F(FdcDownloadTest, ANutrientInAnotherUnitStopsTheImport) {
    Add("nutrient.csv", {"1003", "Protein", "MG", "203", ""});
    EXPECT_EQ(Refusal(), "nutrient.csv: nutrient 1003 is in MG, not in G. Nothing was read.");
    EXPECT_EQ(OwnFoods(), 0);
}

TEST_F(FdcDownloadTest, BrokenFilesAreRefusedWithTheirNameAndLineAndNothingChanges) {
    AddAmount("9900001", "1003", "much");
    EXPECT_EQ(Refusal(), "food_nutrient.csv: line 7 has \"much\" where a number must stand.");
    WriteBytes("food_nutrient.csv",
               "\"id\",\"fdc_id\",\"nutrient_id\",\"amount\"\n\"1\",\"9900001");
    EXPECT_TRUE(Refusal().startsWith("food_nutrient.csv: Line 2 cannot be read"))
        << Refusal().toStdString();
    WriteBytes("food_nutrient.csv", "\"id\",\"fdc_id\"\n");
    EXPECT_EQ(Refusal(), "food_nutrient.csv: it has no column \"nutrient_id\".");
    WriteBytes("food_nutrient.csv", "");
    EXPECT_EQ(Refusal(), "food_nutrient.csv: it is empty.");
    WriteBytes("food_nutrient.csv", QByteArray(10 << 20, 'x'));
    EXPECT_TRUE(Refusal().contains("is longer than")) << Refusal().toStdString();
    WriteBytes("food_nutrient.csv", "\"id\",\"fdc_id\",\"nutrient_id\",\"amount\"\n\xFF\n");
    EXPECT_TRUE(Refusal().contains("not in UTF-8")) << Refusal().toStdString();
    EXPECT_EQ(OwnFoods(), 0);
}

TEST_F(FdcDownloadTest, ADownloadWhoseAmountsBelongToOtherFoodsIsRefused) {
    Write("food_nutrient.csv",
          {{"id", "fdc_id", "nutrient_id", "amount"}, {"1", "1", "1008", "3"}});
    EXPECT_EQ(Refusal(), "food_nutrient.csv has no amount of any of the foods.");
}

TEST_F(FdcDownloadTest, TellsHowFarItIs) {
    for (int i = 0; i < 10'000; ++i)
        AddAmount("1", "1008", "0");
    qint64 told = 0;
    FoodImport::Options options{Download(), {}, true, {}};
    options.step = [&](qint64 done, qint64 total) {
        told = done;
        EXPECT_LE(done, total);
    };
    FoodImport::Run(Records(), options);
    EXPECT_GT(told, 0);
}

TEST_F(FdcDownloadTest, AFolderWithoutFoodsIsRefused) {
    QTemporaryDir empty;
    FoodImport::Options options{empty.path(), {}, false, {}};
    EXPECT_THROW(FoodImport::Run(Records(), options), std::exception);
}
