#include "records/peers/PeerTest.h"

#include "records/RecordsReading.h"
#include "records/archive/TestZip.h"
#include "store/Connection.h"

#include <QFile>

namespace {
class CronometerTest : public PeerTest {
protected:
    Result Read(const QStringList& files) const { return Import("cronometer", files); }
    static QByteArray Bytes(const QString& sample) {
        QFile file(Sample(sample));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};
} // namespace

TEST_F(CronometerTest, AServingBecomesAnEntryWithItsAmounts) {
    const Result result = Read({"cronometer-servings.csv"});
    EXPECT_EQ(result.entries.added, 4);
    EXPECT_TRUE(Listed(result, Kind::Refused).isEmpty());
    EXPECT_EQ(UserRows("SELECT FoodName, Serving, QTY, Meal, UDate, Calories, TotalFat, carbs, "
                       "Protein, Selenium, Thiamin, ID FROM USER_FOODS ORDER BY RecID")
                  .value(0),
              QVariantList({"Porridge Oats, invented", "40 g", 1.0, "Breakfast", "2026-03-02",
                            151.76, 2.61, 27.08, 5.26, 11.56 / 1000, 0.18, QVariant()}));
}

TEST_F(CronometerTest, AnEmptyCellIsUnknownAndAZeroIsZero) {
    Read({"cronometer-servings.csv"});
    EXPECT_EQ(UserRows("SELECT Cholesterol, Ash, Zinc FROM USER_FOODS ORDER BY RecID").mid(0, 2),
              QList<QVariantList>({{0.0, QVariant(), 1.46}, {20.0, QVariant(), QVariant()}}));
}

TEST_F(CronometerTest, CountedUnitsBecomeAQuantity) {
    Read({"cronometer-servings-reduced.csv"});
    EXPECT_EQ(UserRows("SELECT Serving, QTY FROM USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{"40 g", 1.0}, {"slice", 2.0}, {"serving", 1.0}}));
}

TEST_F(CronometerTest, AGroupWithoutAMealIsASnackAndIsTold) {
    const Result result = Read({"cronometer-servings.csv"});
    EXPECT_EQ(User("SELECT Meal FROM USER_FOODS WHERE FoodName LIKE 'Multi%'"), "Snacks");
    EXPECT_EQ(User("SELECT Serving FROM USER_FOODS WHERE FoodName LIKE 'Multi%'"), "tablet - each");
    EXPECT_TRUE(result.remarks.contains("The meal \"Uncategorized\" was put under Snacks. --meal "
                                        "\"Uncategorized=Dinner\" puts it elsewhere."));
}

TEST_F(CronometerTest, AGroupOfAPersonsOwnStaysReadableAndCanBeMapped) {
    const QString file = Write("servings.csv", "Day,Time,Group,Food Name,Amount,Category\n"
                                               "2026-03-02,,Second breakfast,Bun,1.00 piece,\n");
    Options options = From("cronometer", {file});
    Import(options);
    EXPECT_EQ(User("SELECT Serving FROM USER_FOODS"), "piece [Second breakfast]");
    options.choices.meals["second breakfast"] = 1;
    Import(options);
    EXPECT_EQ(UserRows("SELECT Serving, Meal FROM USER_FOODS ORDER BY RecID").last(),
              QVariantList({"piece", "Lunch"}));
}

TEST_F(CronometerTest, VitaminAInMicrogramsIsUnknownUnlessItsSourceIsSaid) {
    const Result result = Read({"cronometer-servings.csv"});
    EXPECT_EQ(UserRows("SELECT VitaminA FROM USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{0.0}, {QVariant()}, {QVariant()}, {QVariant()}}));
    EXPECT_EQ(result.remarks.size(), 3);
    for (const auto& [source, iu] : {std::pair(VitaminASource::Retinol, 134 / 0.3),
                                     {VitaminASource::BetaCarotene, 134 / 0.05}}) {
        Options options = From("cronometer", {"cronometer-servings.csv"});
        options.choices.vitaminA = source;
        Import(options);
        EXPECT_EQ(User("SELECT VitaminA FROM USER_FOODS ORDER BY RecID DESC LIMIT 1"), iu);
    }
}

TEST_F(CronometerTest, TheOldLayoutIsRead) {
    const Result result = Read({"cronometer-servings-old.csv"});
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_EQ(UserRows("SELECT UDate, Serving, VitaminA, Calories FROM USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{"2012-09-10", "1 oz", 284.0, 114.0},
                                   {"2012-09-10", "medium (3\" dia)", 98.0, 94.6},
                                   {"2012-09-11", "8 fl oz", QVariant(), 2.4}}));
}

TEST_F(CronometerTest, DaysAreOnlyComparedWhereServingsHaveAmounts) {
    const Result result = Read({"cronometer-dailysummary.csv", "cronometer-servings.csv"});
    EXPECT_EQ(result.entries.added, 4);
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList({"line 2: The servings are taken, which add up to it.",
                           "line 3: Nothing was logged on this day."}));
    EXPECT_EQ(Listed(result, Kind::Refused),
              QStringList("line 4: The servings are taken, but they add up to 0.00 kcal. Some may "
                          "be missing in the file."));
}

TEST_F(CronometerTest, GroupsOfADayAreComparedWithTheirServings) {
    const Result result = Read({"cronometer-dailysummary-groups.csv", "cronometer-servings.csv"});
    EXPECT_EQ(Listed(result, Kind::LeftOut).size(), 3);
    EXPECT_TRUE(Listed(result, Kind::Refused).isEmpty());
}

TEST_F(CronometerTest, WithoutAmountsInTheServingsTheSumsOfTheDaysAreTaken) {
    const Result result =
        Read({"cronometer-servings-reduced.csv", "cronometer-dailysummary-groups.csv"});
    EXPECT_EQ(result.entries.added, 5);
    EXPECT_EQ(User("SELECT Sum(Calories) FROM USER_FOODS"), 273.76 + 212.50);
    EXPECT_EQ(User("SELECT Meal FROM USER_FOODS WHERE FoodName = 'Cronometer: Dinner'"), "Dinner");
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList("line 4: It is the sum of the day's other rows."));
}

TEST_F(CronometerTest, WeightsAreReadInTheUnitOfTheirRow) {
    const Result result = Read({"cronometer-biometrics.csv"});
    EXPECT_EQ(UserRows("SELECT UDate, Weight FROM USER_WEIGHTS ORDER BY UDate"),
              QList<QVariantList>({{"2026-03-02", 81.4 / 0.45359237}, {"2026-03-03", 179.2}}));
    EXPECT_EQ(Listed(result, Kind::LeftOut), QStringList({"line 4: No Body Fat is kept here.",
                                                          "line 5: No Blood Pressure is kept here.",
                                                          "line 6: No Waist Size is kept here."}));
}

TEST_F(CronometerTest, TheLatestWeightOfADayCounts) {
    const QString file = Write("biometrics.csv", "Day,Time,Group,Metric,Unit,Amount\n"
                                                 "2026-03-02,8:10 PM,,Weight,kg,82\n"
                                                 "2026-03-02,7:10 AM,,Weight,kg,81\n"
                                                 "2026-03-03,,,Weight,st,13\n");
    const Result result = Read({file});
    EXPECT_EQ(UserRows("SELECT Weight FROM USER_WEIGHTS"),
              QList<QVariantList>({{82 / 0.45359237}}));
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList("line 3: A later weight of the same day counts: line 2."));
    EXPECT_EQ(Listed(result, Kind::Refused),
              QStringList("line 4: The weight is neither in kg nor in lbs."));
}

TEST_F(CronometerTest, AFoodOfAPersonsOwnBecomesAnOwnFood) {
    const QString file = Write("food.csv", "Food ID,Food Name,Comments,Amount,Energy (kcal),"
                                           "Alcohol (g),Ash (g)\n"
                                           "7,\"Soup \"\"red\"\"\",,full recipe,150,,1.2\n");
    const Result result = Read({file});
    EXPECT_EQ(result.foods.added, 1);
    const RecordsReading records(Records());
    EXPECT_EQ(
        Rows(FoodDB(), "SELECT ID, FoodName, Serv_Desc_A, Serv_GM_WT_A, Calories, ASH, "
                       "protein FROM FOODS WHERE ID > 23508"),
        QList<QVariantList>({{23509, "Soup 'red'", "full recipe", 100.0, 150.0, 1.2, QVariant()}}));
    EXPECT_EQ(Listed(result, Kind::Changed),
              QStringList("line 2: A character that names must not hold was replaced."));
}

TEST_F(CronometerTest, AZipOfAllFilesIsReadAndNothingElseIsKept) {
    const QString zip =
        Write("export.zip", TestZip({{"notes.csv", "Day,Time,Group,Note\n2026-03-02,,,hello\n"},
                                     {"dailysummary.csv", Bytes("cronometer-dailysummary.csv")},
                                     {"servings.csv", Bytes("cronometer-servings.csv")},
                                     {"exercises.csv", Bytes("cronometer-exercises.csv")},
                                     {"biometrics.csv", Bytes("cronometer-biometrics.csv")},
                                     {"odd.csv", "a,b\n1,2\n"},
                                     {"empty.csv", ""},
                                     {"photo.jpg", "..."}}));
    const Result result = Read({zip});
    EXPECT_EQ(result.entries.added, 4);
    EXPECT_EQ(result.weights.added, 2);
    EXPECT_EQ(result.CountOf(Kind::LeftOut), 2 + 3 + 3 + 1 + 3);
}

TEST_F(CronometerTest, RowsThatAreWrongAreRefusedOneByOne) {
    const QString file = Write("servings.csv", "Day,Food Name,Amount,Energy (kcal),Fat (g)\n"
                                               "2026-02-30,Bread,1 slice,80,1\n"
                                               "3/2/2026,Bread,1 slice,80,1\n"
                                               "2026-03-02,,1 slice,80,1\n"
                                               "2026-03-02,Bread,1 slice,\"1,5\",1\n"
                                               "2026-03-02,Bread,1 slice,80,-1\n"
                                               "2026-03-02,Bread,1 slice,1e300,1\n"
                                               "2026-03-02,Bread,1 slice,nan,1\n"
                                               "2026-03-02,Bread,1 slice,80\n"
                                               "2026-03-02,Good,1 slice,80,1\n");
    const Result result = Read({file});
    EXPECT_EQ(result.entries.added, 1);
    EXPECT_EQ(
        Listed(result, Kind::Refused),
        QStringList({"line 2: \"2026-02-30\" is not a date.",
                     "line 3: \"3/2/2026\" may have the month or the day first. Say which: "
                     "--date-order mdy or dmy.",
                     "line 4: It has no name.", "line 5: Energy (kcal): \"1,5\" is not a number.",
                     "line 6: Fat (g) is negative.", "line 7: Energy (kcal) is too large.",
                     "line 8: Energy (kcal): \"nan\" is not a number.",
                     "line 9: The row has 4 cells, the header has 5."}));
}

TEST_F(CronometerTest, ADateWithSlashesIsReadInTheOrderThatIsSaid) {
    const QString file =
        Write("servings.csv", "Day,Food Name,Amount,Energy (kcal)\n3/2/2026,Bread,1 slice,80\n");
    Options options = From("cronometer", {file});
    options.choices.dateOrder = PeerChoices::DateOrder::MonthFirst;
    Import(options);
    options.choices.dateOrder = PeerChoices::DateOrder::DayFirst;
    Import(options);
    EXPECT_EQ(UserRows("SELECT UDate FROM USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{"2026-03-02"}, {"2026-02-03"}}));
}

TEST_F(CronometerTest, AFileOfAnotherProgramIsRefusedWhole) {
    EXPECT_EQ(Failure(From("cronometer", {"loseit-food-logs.csv"})),
              "loseit-food-logs.csv is not a table that Cronometer exports: its header names other "
              "columns.");
}
