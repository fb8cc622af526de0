#include "records/peers/PeerTest.h"

#include "records/archive/TestZip.h"

#include <QFile>

namespace {
class OpenNutriTrackerTest : public PeerTest {
protected:
    Options From(const QString& file) const { return PeerTest::From("opennutritracker", {file}); }
    QString Intake(const QByteArray& unit, const QByteArray& meal) const {
        return Write("user_intake.json",
                     R"([{"id": "1", "unit": ")" + unit +
                         R"(", "amount": 2, "type": "snack", "dateTime": "2026-03-02T08:15:00.000",
                          "meal": {"name": "A", "nutriments": {"energyKcal100": 100,
                          "sodium100": 0.5, "vitaminB12100": 0.000002}, )" +
                         meal + "}}]");
    }
};
} // namespace

TEST_F(OpenNutriTrackerTest, AnIntakeIsScaledFromAHundredGrams) {
    EXPECT_EQ(Import(From("opennutritracker-intake.json")).entries.added, 2);
    EXPECT_EQ(UserRows("SELECT FoodName, Serving, Meal, UDate, Calories, SatFat, Sodium FROM "
                       "USER_FOODS ORDER BY RecID"),
              QList<QVariantList>({{"Oat flakes (invented), Nobrand", "40 g", "Breakfast",
                                    "2026-03-02", 372.0 / 100 * 40, 1.2 / 100 * 40, QVariant()},
                                   {"Tomato soup (invented)", "250 ml", "Lunch", "2026-03-02",
                                    45.0 / 100 * 250, QVariant(), QVariant()}}));
}

TEST_F(OpenNutriTrackerTest, TheTableGivesTheSame) {
    const Result result = Import(From("opennutritracker-intake.csv"));
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_EQ(UserRows("SELECT Serving, QTY, Calories, Meal FROM USER_FOODS ORDER BY RecID").last(),
              QVariantList({"serving", 1.0, 387.0 / 100 * 9, "Snacks"}));
    EXPECT_EQ(Listed(result, Kind::Changed),
              QStringList("line 4: The amount was read in servings; some versions of the program "
                          "write grams here."));
}

TEST_F(OpenNutriTrackerTest, JsonGoesBeforeTheTableOfTheSameExport) {
    const auto bytes = [](const char* sample) {
        QFile file(Sample(sample));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QString zip = Write(
        "export.zip",
        TestZip({{"user_intake.csv", bytes("opennutritracker-intake.csv")},
                 {"user_tracked_day.csv", bytes("opennutritracker-days.csv")},
                 {"user_intake.json", bytes("opennutritracker-intake.json")},
                 {"weight_log.json", R"([{"date": "2026-03-02T07:00:00.000", "weightKg": 81.4},
                                         {"date": "2026-03-03", "weightKg": -1}])"},
                 {"user_recipes.json", R"([{"name": "Soup", "totalWeightG": 800, "servingsCount": 4,
                     "description": "Boil.", "aggregatedNutrimentsPer100": {"energyKcal100": 50}}])"},
                 {"user_activity.json", R"([{"duration": 3}])"},
                 {"picture.png", "x"}}));
    const Result result = Import(From(zip));
    EXPECT_EQ(result.entries.added, 2);
    EXPECT_EQ(result.weights.added, 1);
    EXPECT_EQ(result.recipes.added, 1);
    EXPECT_EQ(User("SELECT Calories FROM Ingredients WHERE FoodName = 'Soup'"), 400.0);
    EXPECT_EQ(Listed(result, Kind::Refused), QStringList("element 2: It is not a weight."));
    EXPECT_EQ(result.CountOf(Kind::LeftOut), 3 + 3 + 1 + 1);
}

TEST_F(OpenNutriTrackerTest, MicronutrientsOfOlderFoodsAreNotGuessed) {
    Options options = From(Intake("g", R"("source": "off")"));
    const auto sodium = [&](PeerChoices::Micronutrients choice) {
        options.choices.oldMicronutrients = choice;
        Import(options);
        return UserRows("SELECT Sodium, VitaminB12 FROM USER_FOODS ORDER BY RecID DESC LIMIT 1")
            .value(0);
    };
    using enum PeerChoices::Micronutrients;
    EXPECT_EQ(sodium(Unknown), QVariantList({QVariant(), QVariant()}));
    EXPECT_EQ(sodium(Grams), QVariantList({500.0 / 100 * 2, 0.000002 * 1e6 / 100 * 2}));
    EXPECT_EQ(sodium(AsNamed), QVariantList({0.5 / 100 * 2, 0.000002 / 100 * 2}));
}

TEST_F(OpenNutriTrackerTest, MicronutrientsOfNewerFoodsAreTakenAsNamed) {
    Import(From(Intake("g", R"("source": "off", "dataVersion": 1)")));
    EXPECT_EQ(User("SELECT Sodium FROM USER_FOODS"), 0.5 / 100 * 2);
}

TEST_F(OpenNutriTrackerTest, OtherUnitsNeedAWeight) {
    EXPECT_EQ(Listed(Import(From(Intake("serving", R"("source": "fdc")"))), Kind::Refused),
              QStringList("element 1: It does not say what a serving weighs."));
    EXPECT_EQ(Listed(Import(From(Intake("cup", R"("source": "fdc")"))), Kind::Refused),
              QStringList("element 1: The unit \"cup\" has no known weight."));
    Import(From(Intake("oz", R"("source": "fdc")")));
    EXPECT_EQ(User("SELECT Calories FROM USER_FOODS"), 100.0 / 100 * (2 * 28.3495));
}
