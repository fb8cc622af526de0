#include "records/peers/PeerTest.h"

#include "records/archive/TestZip.h"

#include <QFile>

namespace {
class MyFitnessPalTest : public PeerTest {
protected:
    Options From(const QStringList& files) const { return PeerTest::From("myfitnesspal", files); }
};
} // namespace

TEST_F(MyFitnessPalTest, AMealBecomesAnEntry) {
    const Result result = Import(From({"myfitnesspal-nutrition-a.csv"}));
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_EQ(
        UserRows("SELECT FoodName, Serving, QTY, Meal, Calories, TotalFat, Potassium, fiber "
                 "FROM USER_FOODS ORDER BY RecID"),
        QList<QVariantList>(
            {{"MyFitnessPal: Breakfast", "meal", 1.0, "Breakfast", 412.0, 11.2, 402.0, 8.2},
             {"MyFitnessPal: Dinner", "meal (late)", 1.0, "Dinner", 1020.5, 38.0, 905.0, 12.4},
             {"MyFitnessPal: Mid Morning Snack", "meal [Mid Morning Snack]", 1.0, "Snacks", 95.0,
              0.3, 195.0, 4.4}}));
}

TEST_F(MyFitnessPalTest, AmountsWithoutAUnitStayUnknownAndAreTold) {
    const Result result = Import(From({"myfitnesspal-nutrition-a.csv"}));
    EXPECT_EQ(
        User("SELECT Count(*) FROM USER_FOODS WHERE VitaminA IS NULL AND VitaminC IS NULL AND "
             "Calcium IS NULL AND Iron IS NULL"),
        3);
    EXPECT_TRUE(result.remarks.contains(
        "Calcium was left out: the file does not say whether it is in percent."));
}

TEST_F(MyFitnessPalTest, AZeroIsUnknownUnlessItIsSaidToBeKnown) {
    Options options = From({"myfitnesspal-nutrition-a.csv"});
    Import(options);
    EXPECT_EQ(User("SELECT Count(*) FROM USER_FOODS WHERE Cholesterol IS NULL"), 1);
    options.choices.zerosAreKnown = true;
    Import(options);
    EXPECT_EQ(User("SELECT Count(*) FROM USER_FOODS WHERE Cholesterol = 0"), 1);
}

TEST_F(MyFitnessPalTest, APartThatIsMoreThanItsWholeIsUnknown) {
    const QString file =
        Write("Nutrition-Summary.csv",
              "Date,Meal,Calories,Fat (g),Saturated Fat,Carbohydrates (g),Fiber\r\n"
              "2026-03-02,Lunch,400.0,11.2,303.7,20.0,20.1\r\n");
    const Result result = Import(From({file}));
    EXPECT_EQ(UserRows("SELECT TotalFat, SatFat, fiber FROM USER_FOODS"),
              QList<QVariantList>({{11.2, QVariant(), 20.1}}));
    EXPECT_EQ(Listed(result, Kind::Changed),
              QStringList("line 2: Saturated Fat was left unknown: it is more than all the Total "
                          "Fat."));
}

TEST_F(MyFitnessPalTest, TheTimeOfAMealTellsItsRowsApart) {
    Import(From({"myfitnesspal-nutrition-b.csv"}));
    EXPECT_EQ(UserRows("SELECT Serving FROM USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{"meal at 07:50"}, {"meal at 08:05"}, {"meal"}}));
}

TEST_F(MyFitnessPalTest, AByteOrderMarkAndTheShortLayoutAreRead) {
    const QString file =
        Write("Nutrition-Summary-2018.csv", "\xEF\xBB\xBF"
                                            "Date,Meal,Time,Calories,Fat (g),Protein (g)\r\n"
                                            "2018-03-02,Dinner,,500.0,10.0,20.0\r\n"
                                            "2018-03-02,Daily Total,,500.0,10.0,20.0\r\n");
    const Result result = Import(From({file}));
    EXPECT_EQ(result.entries.added, 1);
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList("line 3: It is the sum of the day's meals."));
}

TEST_F(MyFitnessPalTest, WeightsNeedAUnit) {
    Options options = From({"myfitnesspal-measurement.csv"});
    EXPECT_EQ(Failure(options), "myfitnesspal-measurement.csv does not say in which unit its "
                                "weights are. Say it: --weight-unit kg or --weight-unit lb.");
    options.choices.weightUnit = WeightUnit::Pound;
    EXPECT_EQ(Import(options).weights.added, 3);
    EXPECT_EQ(User("SELECT Weight FROM USER_WEIGHTS WHERE UDate = '2026-03-09'"), 81.1);
}

TEST_F(MyFitnessPalTest, TheUnitOfWeightsFollowsFromTheExercisesOfTheSameExport) {
    const auto bytes = [](const char* sample) {
        QFile file(Sample(sample));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray folder = "File-Export-2026-03-01-to-2026-03-31/";
    const QString zip =
        Write("export.zip",
              TestZip({{folder + "Measurement-Summary.csv", bytes("myfitnesspal-measurement.csv")},
                       {folder + "Exercise-Summary.csv", bytes("myfitnesspal-exercise.csv")},
                       {folder + "Nutrition-Summary.csv", bytes("myfitnesspal-nutrition-a.csv")}}));
    const Result result = Import(From({zip}));
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_EQ(result.weights.added, 3);
    EXPECT_EQ(result.CountOf(Kind::LeftOut), 3);
    EXPECT_EQ(User("SELECT Weight FROM USER_WEIGHTS WHERE UDate = '2026-03-02'"),
              81.4 / 0.45359237);
    EXPECT_FALSE(result.remarks.keys().filter("Weights were read in kg, because").isEmpty());
}

TEST_F(MyFitnessPalTest, ADayWithoutAWeightIsLeftOut) {
    const QString file =
        Write("Measurement-Summary.csv",
              "Date,Body Fat %,Weight,Neck\n2026-03-02,22.5,,\n2026-03-03,,180,\n");
    Options options = From({file});
    options.choices.weightUnit = WeightUnit::Pound;
    const Result result = Import(options);
    EXPECT_EQ(result.weights.added, 1);
    EXPECT_EQ(Listed(result, Kind::LeftOut), QStringList("line 2: It gives no weight."));
}
