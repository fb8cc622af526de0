#include "records/peers/PeerTest.h"

namespace {
class WaistlineTest : public PeerTest {
protected:
    Result Read(const QString& file) const { return Import("waistline", {file}); }
    QString Backup(const QByteArray& foods, const QByteArray& items,
                   const QByteArray& rest = {}) const {
        return Write("backup.json", R"({"version": 34, "foodList": [)" + foods +
                                        R"(], "diary": [{"dateTime": "2026-03-02T00:00:00.000Z",)"
                                        R"("items": [)" +
                                        items + "]}]" + rest + "}");
    }
};
} // namespace

TEST_F(WaistlineTest, TheDiaryIsScaledFromThePortionsOfItsFoods) {
    const Result result = Read("waistline_export.json");
    EXPECT_EQ(result.entries.added, 3);
    EXPECT_TRUE(Listed(result, Kind::Refused).isEmpty());
    const auto rows = UserRows("SELECT FoodName, Serving, QTY, Meal, Calories, Protein FROM "
                               "USER_FOODS ORDER BY RecID");
    EXPECT_EQ(rows.value(0), QVariantList({"Oat flakes (invented), Nobrand", "40 g", 1.0,
                                           "Breakfast", 372.0 / 100 * 40, 13.5 / 100 * 40}));
    EXPECT_EQ(rows.value(1), QVariantList({"Porridge (invented)", "150 g", 2.0, "Lunch",
                                           260.0 / 300 * 300, 12.0 / 300 * 300}));
    EXPECT_EQ(rows.value(2),
              QVariantList({"canteen (invented)", "250 kcal", 1.0, "Dinner", 250.0, QVariant()}));
}

TEST_F(WaistlineTest, SaltCountsAsSodiumAndATextAsANumber) {
    Read("waistline_export.json");
    EXPECT_EQ(User("SELECT Sodium FROM USER_FOODS ORDER BY RecID"), 0.02 / 2.5 * 1000 / 100 * 40);
    EXPECT_EQ(User("SELECT SatFat FROM USER_FOODS ORDER BY RecID"), 1.2 / 100 * 40);
}

TEST_F(WaistlineTest, KilojoulesCountWhereThereAreNoCalories) {
    Read(Backup(R"({"id": 1, "name": "A", "portion": 1, "unit": "piece", "nutrition":
                {"kilojoules": "418.4", "calories": "", "fat": ""}})",
                R"({"id": 1, "portion": 1, "quantity": "3", "category": "0"})"));
    EXPECT_EQ(UserRows("SELECT Calories, TotalFat, QTY FROM USER_FOODS"),
              QList<QVariantList>({{418.4 / 4.184 * 3, QVariant(), 3.0}}));
}

TEST_F(WaistlineTest, WeightsFoodsAndRecipesAreTakenToo) {
    const Result result = Read("waistline_export.json");
    EXPECT_EQ(result.weights.added, 1);
    EXPECT_EQ(User("SELECT Weight FROM USER_WEIGHTS"), 81.4 / 0.45359237);
    EXPECT_EQ(result.foods.added, 1);
    EXPECT_EQ(Food("SELECT Serv_Desc_A FROM FOODS WHERE ID = 23509"), "100 g");
    EXPECT_EQ(result.recipes.added, 1);
    EXPECT_EQ(UserRows("SELECT FoodName, Serving, Calories FROM Ingredients WHERE RecipeID = "
                       "(SELECT RecipeID FROM Recipes WHERE RecipeName LIKE 'Porridge%')"),
              QList<QVariantList>({{"Oat flakes (invented), Nobrand", "40 g", 372.0 / 100 * 40}}));
    EXPECT_EQ(Listed(result, Kind::LeftOut),
              QStringList({"foodList 2: It stands for energy without a food.",
                           "diary 1: Of the measurements only the weight is kept."}));
}

TEST_F(WaistlineTest, ASecondImportAddsNothing) {
    Read("waistline_export.json");
    const Result again = Read("waistline_export.json");
    EXPECT_EQ(again.entries.added + again.weights.added + again.foods.added + again.recipes.added,
              0);
    EXPECT_EQ(again.entries.present + again.weights.present + again.foods.present +
                  again.recipes.present,
              6);
    EXPECT_TRUE(Listed(again, Kind::Refused).isEmpty());
}

TEST_F(WaistlineTest, ItemsThatAreWrongAreRefusedOneByOne) {
    const Result result =
        Read(Backup(R"({"id": 1, "name": "A", "portion": 100, "nutrition": {"calories": 50}},
                     {"id": 2, "name": "", "portion": 100, "nutrition": {}},
                     {"id": 3, "name": "C", "portion": 0, "nutrition": {}},
                     {"id": 4, "name": "D", "nutrition": {"fat": [1]}}, 7)",
                    R"({"id": 9, "category": 0}, {"id": 1, "quantity": "many", "category": 0},
                     {"id": 1, "quantity": 0, "category": 0}, {"id": 1, "category": 1e300},
                     {"id": 1, "quantity": 1e300, "category": 0})"));
    EXPECT_EQ(Listed(result, Kind::Refused),
              QStringList({"foodList 2: It has no name.", "foodList 3: The portion is not above 0.",
                           "foodList 4: A value is not a number.", "foodList 5: It has no name.",
                           "diary 1, item 1: The file does not hold the food to which it refers.",
                           "diary 1, item 2: \"many\" is not a number.",
                           "diary 1, item 3: The quantity is not above 0.",
                           "diary 1, item 5: Calories is too large."}));
    EXPECT_EQ(result.entries.added, 1);
}

TEST_F(WaistlineTest, BurnedEnergyIsLeftOut) {
    const Result result =
        Read(Backup(R"({"id": 2, "name": "Quick Add", "barcode": "quick-add", "portion": 1,
                     "nutrition": {"calories": 1}})",
                    R"({"id": 2, "quantity": "-300", "category": 0})"));
    EXPECT_EQ(Listed(result, Kind::LeftOut).last(),
              "diary 1, item 1: No burned energy is kept here.");
}

TEST_F(WaistlineTest, OwnMealsAndOwnNutrientsAreReadFromTheSettings) {
    Read(Backup(R"({"id": 1, "name": "A", "portion": 100, "nutrition": {"water": 50}})",
                R"({"id": 1, "category": 1})",
                R"(, "settings": {"diary": {"meal-names": ["Early", "Supper"]},
                 "nutriments": {"units": {"water": "mg"}}})"));
    EXPECT_EQ(UserRows("SELECT Meal, Water FROM USER_FOODS"),
              QList<QVariantList>({{"Dinner", 0.05}}));
}

TEST_F(WaistlineTest, WhatIsNoBackupIsRefusedWhole) {
    const auto message = [this](const QByteArray& content) {
        return Failure(From("waistline", {Write("a.json", content)}));
    };
    EXPECT_TRUE(message("[]").startsWith("a.json is not a backup of Waistline"));
    EXPECT_TRUE(message("{\"version\": 1, \"foodList\": []}").startsWith("a.json is not a backup"));
    EXPECT_TRUE(message("{\"foodList\": [").startsWith("a.json is not JSON: "));
    EXPECT_TRUE(message(QByteArray(100'000, '[')).startsWith("a.json is not JSON: "));
    EXPECT_TRUE(message("\xFF\xFE{").startsWith("a.json is not JSON: "));
    EXPECT_TRUE(message("").startsWith("a.json is not JSON: "));
}
