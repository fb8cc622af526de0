#include "records/peers/PeerTest.h"

#include "records/RecordsReading.h"
#include "records/archive/TestZip.h"
#include "store/Connection.h"

namespace {
class LoseItTest : public PeerTest {
protected:
    Options From(const QStringList& files) const { return PeerTest::From("loseit", files); }
};
} // namespace

TEST_F(LoseItTest, AFoodOfADayBecomesAnEntry) {
    const Result result = Import(From({"loseit-food-logs.csv"}));
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_EQ(UserRows("SELECT FoodName, Serving, QTY, Meal, UDate, Calories, SatFat, Cholesterol "
                       "FROM USER_FOODS ORDER BY RecID")
                  .mid(0, 2),
              QList<QVariantList>({{"Oatmeal, invented", "Servings", 1.5, "Breakfast", "2026-03-02",
                                    225.0, 0.8, 0.0},
                                   {"Green apple invented", "Each", 1.0, "Snacks", "2026-03-02",
                                    95.0, QVariant(), QVariant()}}));
    EXPECT_EQ(Listed(result, Kind::LeftOut), QStringList("line 4: It was deleted in Lose It!."));
}

TEST_F(LoseItTest, TheWeeklyFileIsReadAndItsExerciseLeftOut) {
    const Result result = Import(From({"loseit-weekly.csv"}));
    EXPECT_EQ(result.entries.added, 2);
    EXPECT_EQ(User("SELECT Sodium FROM USER_FOODS WHERE Meal = 'Dinner'"), 1120.0);
    EXPECT_EQ(Listed(result, Kind::LeftOut), QStringList("line 3: No exercise is kept here."));
}

TEST_F(LoseItTest, TheOlderWeeklyFileIsRead) {
    const QString file =
        Write("WeeklySummary7371.csv",
              "Date,Name,Type,Quantity,Units,Calories,Fat (g),Protein (g),Carbohydrates (g),"
              "Saturated Fat (g),Sugars (g),Fiber (g),Cholesterol (mg),Sodium (mg)\n"
              "03/07/2020,Toast,Lunch,2,Slices,\"1,056\",9,14,44,n/a,n/a,8,n/a,20\n");
    EXPECT_EQ(Import(From({file})).entries.added, 1);
    EXPECT_EQ(UserRows("SELECT UDate, Calories, Serving, QTY FROM USER_FOODS"),
              QList<QVariantList>({{"2020-03-07", 1056.0, "Slices", 2.0}}));
}

TEST_F(LoseItTest, TwoEqualRowsAreTwoServings) {
    const QByteArray header = "Date,Name,Type,Quantity,Units,Calories,Fat (g)\n";
    const QByteArray row = "03/07/2020,Toast,Lunch,1,Slices,80,1\n";
    EXPECT_EQ(Import(From({Write("a.csv", header + row + row)})).entries.added, 2);
    const Result again = Import(From({Write("b.csv", header + row + row + row)}));
    EXPECT_EQ(again.entries.added, 1);
    EXPECT_EQ(again.entries.present, 2);
}

TEST_F(LoseItTest, ThatARowMayBeDeletedIsNotGuessed) {
    const QString file = Write("a.csv", "Date,Name,Type,Quantity,Units,Calories,Deleted,Fat (g)\n"
                                        "03/07/2020,Toast,Lunch,1,Slices,80,maybe,1\n");
    EXPECT_EQ(Listed(Import(From({file})), Kind::Refused),
              QStringList("line 2: It does not say whether it was deleted."));
}

TEST_F(LoseItTest, TheUnitOfWeightsFollowsFromTheHeight) {
    const QByteArray weights = "Date,Weight,Last Updated,Deleted\n"
                               "03/02/2026,81.40,2026-03-02T07:21:13+0100,false\n"
                               "03/02/2026,81.10,2026-03-02T21:02:40+0100,false\n"
                               "03/10/2026,80.90,2026-03-10T07:30:00+0100,true\n";
    const auto profile = [](const QByteArray& height) -> QByteArray {
        return "Name,Value\nBirthday,01/01/1980\nHeight," + height + "\n";
    };
    for (const auto& [height, pounds] :
         {std::pair<QByteArray, double>("178", 81.1 / 0.45359237), {"70", 81.1}}) {
        SCOPED_TRACE(height.toStdString());
        Options options = From({Write(
            "export.zip", TestZip({{"weights.csv", weights}, {"profile.csv", profile(height)}}))});
        options.dryRun = true;
        const Result result = Import(options);
        EXPECT_EQ(result.weights.added, 1);
        EXPECT_EQ(Listed(result, Kind::LeftOut).size(), 4);
    }
    const Options options = From(
        {Write("export.zip", TestZip({{"weights.csv", weights}, {"profile.csv", profile("98")}}))});
    EXPECT_EQ(Failure(options), "export.zip: weights.csv does not say in which unit its weights "
                                "are. Say it: --weight-unit kg or --weight-unit lb.");
}

TEST_F(LoseItTest, TheLastUpdateOfADaysWeightCounts) {
    Options options = From({"loseit-weights.csv"});
    options.choices.weightUnit = WeightUnit::Kilogram;
    const Result result = Import(options);
    EXPECT_EQ(UserRows("SELECT UDate, Weight FROM USER_WEIGHTS ORDER BY UDate"),
              QList<QVariantList>(
                  {{"2026-03-02", 81.1 / 0.45359237}, {"2026-03-09", 80.85 / 0.45359237}}));
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList({"line 5: It was deleted in Lose It!.",
                           "line 2: A later weight of the same day counts: line 3."}));
}

TEST_F(LoseItTest, OwnFoodsAndRecipesAreTaken) {
    const QString foods =
        Write("custom-foods.csv", "Name,UniqueId,Brand,Image,Quantity,Measure,Calories,Fat (g)\n"
                                  "Bar,1,Nobrand,x,2,Pieces,210,n/a\n");
    const QString recipes =
        Write("recipes.csv", "Name,UniqueId,Quantity,Measure,Author,Image Name,Calories,Fat (g)\n"
                             "Soup,2,4,Bowls,me,x,\"1,200\",20\n");
    const Result result = Import(From({foods, recipes}));
    EXPECT_EQ(result.foods.added, 1);
    EXPECT_EQ(result.recipes.added, 1);
    EXPECT_EQ(
        UserRows("SELECT RecipeName, RecipeYield, ServingName FROM Recipes WHERE RecipeName = "
                 "'Soup'"),
        QList<QVariantList>({{"Soup", 4.0, "Bowls"}}));
    EXPECT_EQ(UserRows("SELECT FoodName, QTY, Calories, TotalFat, Protein FROM Ingredients WHERE "
                       "FoodName = 'Soup'"),
              QList<QVariantList>({{"Soup", 1.0, 1200.0, 20.0, QVariant()}}));
    EXPECT_EQ(Food("SELECT FoodName || '/' || Serv_Desc_A || '/' || Calories FROM FOODS WHERE ID = "
                   "23509"),
              "Bar, Nobrand/2 Pieces/210.0");
    const Result again = Import(From({foods, recipes}));
    EXPECT_EQ(again.foods.added + again.recipes.added, 0);
    EXPECT_EQ(again.foods.present + again.recipes.present, 2);
}
