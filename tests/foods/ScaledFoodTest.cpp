#include "foods/FoodsTest.h"

#include "foods/Logix.h"
#include "foods/ScaledFood.h"
#include "model/Nutrients.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <bit>
#include <limits>

class ScaledFoodTest : public FoodsTest {};

TEST_F(ScaledFoodTest, EntriesAreFoundWithoutRegardToCase) {
    ScaledFood item;
    item.Add("Protein", 3.5);
    item.Add("FOODNAME", QString("Oats"));
    EXPECT_EQ(item.Amount("pROTEIN"), 3.5);
    EXPECT_EQ(item.Text("FoodName"), "Oats");
}

TEST_F(ScaledFoodTest, ADuplicateKeyAndAnUnknownKeyFail) {
    ScaledFood item;
    item.Add("ash", 1.0);
    EXPECT_EQ(FailureOf([&] { item.Add("ASH", 2.0); }), 457);
    EXPECT_EQ(FailureOf([&] { item.Item("zinc"); }), 5);
    EXPECT_EQ(item.Amount("ash"), 1.0);
}

TEST_F(ScaledFoodTest, EntriesAreCountedFromOne) {
    ScaledFood item;
    item.Add("ash", 1.0);
    item.Add("zinc", 2.0);
    EXPECT_EQ(item.Item(1).toDouble(), 1.0);
    EXPECT_EQ(item.Item(2).toDouble(), 2.0);
    for (const int position : {-1, 0, 3})
        EXPECT_EQ(FailureOf([&] { item.Item(position); }), 9) << position;
}

TEST_F(ScaledFoodTest, AmountIsPerHundredGramsTimesServingTimesQuantity) {
    AddFood({.id = 7, .name = "Bread", .gramsA = 30.0, .nutrients = {{"Calories", 250}}});
    const ScaledFood item = ScaledFood::FromCatalogue(7, "A", 2);
    EXPECT_EQ(item.Amount("Calories"), 150);
    EXPECT_EQ(item.Text("FOODNAME"), "Bread");
    EXPECT_EQ(item.Text("SERVING"), "1 cup");
    EXPECT_EQ(item.Item("ID").toInt(), 7);
    EXPECT_EQ(item.Amount("QTY"), 2);
}

TEST_F(ScaledFoodTest, TheOrderOfTheOperationsHoldsToTheLastBit) {
    const double values[] = {0.1, 3.3, 7.77, 123.456, 0.007, 1e-9, 98765.4321};
    const double grams[] = {28.35, 113.0, 0.3, 7.1};
    const double quantities[] = {.05, 1, 1.1, 3.3, 98.99};
    int id = 0;
    for (const double value : values)
        for (const double weight : grams) {
            AddFood({.id = ++id, .name = "x", .gramsA = weight, .nutrients = {{"Iron", value}}});
            for (const double quantity : quantities) {
                volatile double amount = value / 100;
                amount = amount * weight;
                amount = amount * quantity;
                const double read = ScaledFood::FromCatalogue(id, "A", quantity).Amount("Iron");
                EXPECT_EQ(std::bit_cast<quint64>(read), std::bit_cast<quint64>(double(amount)));
            }
        }
}

TEST_F(ScaledFoodTest, FoodEntriesStandInTheOrderOfTheCatalogue) {
    AddFood({.id = 7, .name = "Bread"});
    const Recordset row(FoodDB(), "SELECT * FROM foods WHERE ID = 7");
    const ScaledFood item = ScaledFood::FromCatalogue(7, "A", 1);
    ASSERT_EQ(item.Entries().size(), NutrientCount + 4);
    for (int i = 0; i < NutrientCount; ++i)
        EXPECT_EQ(item.Entries()[i].key, row.FieldName(i + 1));
    const QStringList tail{"FOODNAME", "SERVING", "ID", "QTY"};
    for (int i = 0; i < tail.size(); ++i)
        EXPECT_EQ(item.Entries()[NutrientCount + i].key, tail[i]);
}

TEST_F(ScaledFoodTest, EveryNutrientIsFoundUnderEachOfItsNames) {
    AddFood({.id = 7, .name = "Bread"});
    const ScaledFood item = ScaledFood::FromCatalogue(7, "A", 1);
    for (const NutrientInfo& nutrient : Nutrients()) {
        EXPECT_EQ(FailureOf([&] { item.Item(nutrient.profileColumn); }), 0) << nutrient.property;
        EXPECT_EQ(FailureOf([&] { item.Item(nutrient.logColumn); }), 0) << nutrient.property;
    }
}

TEST_F(ScaledFoodTest, ANullNutrientCountsAsZero) {
    AddFood({.id = 7, .name = "Bread", .nutrients = {{"Calories", 250}}});
    const QVariant zinc = ScaledFood::FromCatalogue(7, "A", 2).Item("Zinc");
    EXPECT_FALSE(zinc.isNull());
    EXPECT_EQ(zinc.toDouble(), 0);
}

TEST_F(ScaledFoodTest, AnAmountThatOverflowsIsTheGreatestAndNoneOfItIsZero) {
    AddFood({.id = 1, .name = "Star", .gramsA = 1e300, .nutrients = {{"Calories", 1e300}}});
    EXPECT_EQ(ScaledFood::Of(1, "A", 1, false).Amount("Calories"),
              std::numeric_limits<double>::max());
    EXPECT_EQ(ScaledFood::Of(1, "A", 0, false).Amount("Calories"), 0);
}

TEST_F(ScaledFoodTest, AnyLetterButATakesTheSecondServing) {
    AddFood({.id = 7, .name = "Bread", .gramsB = 50.0, .nutrients = {{"Calories", 200}}});
    const ScaledFood item = ScaledFood::FromCatalogue(7, "B", 1);
    EXPECT_EQ(item.Amount("Calories"), 100);
    EXPECT_EQ(item.Text("SERVING"), "1 oz");
}

TEST_F(ScaledFoodTest, ANullGramWeightCountsAsAHundredGrams) {
    AddFood({.id = 7,
             .name = "Bread",
             .gramsA = QVariant(),
             .gramsB = QVariant(),
             .nutrients = {{"Calories", 250}}});
    EXPECT_EQ(ScaledFood::FromCatalogue(7, "A", 1).Amount("Calories"), 250);
    EXPECT_EQ(ScaledFood::FromCatalogue(7, "B", 3).Amount("Calories"), 750);
}

TEST_F(ScaledFoodTest, ANullServingTextReadsHundredGrams) {
    AddFood({.id = 7, .name = "Bread", .servA = QVariant(), .servB = QVariant()});
    EXPECT_EQ(ScaledFood::FromCatalogue(7, "A", 1).Text("SERVING"), "100 grams");
    EXPECT_EQ(ScaledFood::FromCatalogue(7, "B", 1).Text("SERVING"), "100 grams");
}

TEST_F(ScaledFoodTest, ACustomFoodGivesTheTypedValuesTimesTheQuantity) {
    AddFood({.id = 23509, .name = "Mine", .gramsA = 100.0, .nutrients = {{"protein", 12.5}}});
    EXPECT_EQ(ScaledFood::FromCatalogue(23509, "A", 3).Amount("Protein"), 37.5);
}

TEST_F(ScaledFoodTest, ADeletedFoodFailsWithNoCurrentRecord) {
    EXPECT_EQ(FailureOf([] { ScaledFood::FromCatalogue(4711, "A", 1); }), 3021);
}

TEST_F(ScaledFoodTest, ARecipeIsTheSumOfItsIngredientsWhateverItsYield) {
    const qint32 soup = AddRecipe("Soup", "1 bowl");
    AddIngredient(soup, {{"Calories", 100}, {"Protein", 1.25}});
    AddIngredient(soup, {{"Calories", 212}, {"fiber", 4}});
    const ScaledFood item = ScaledFood::FromRecipe(soup, 1);
    EXPECT_EQ(item.Amount("Calories"), 312);
    EXPECT_EQ(item.Amount("Protein"), 1.25);
    EXPECT_EQ(item.Text("FOODNAME"), "Soup");
    EXPECT_EQ(item.Text("SERVING"), "1 bowl");
    EXPECT_EQ(item.Item("ID").toInt(), soup);
    EXPECT_EQ(ScaledFood::FromRecipe(soup, 2.5).Amount("Calories"), 780);
}

TEST_F(ScaledFoodTest, RecipeEntriesStandInTheOrderOfTheSums) {
    const qint32 soup = AddRecipe("Soup", "1 bowl");
    const ScaledFood item = ScaledFood::FromRecipe(soup, 1);
    const Recordset sums(UserDB(), RecipeSumSQL(soup));
    ASSERT_EQ(sums.FieldCount(), NutrientCount);
    for (int i = 0; i < NutrientCount; ++i)
        EXPECT_EQ(item.Entries()[i].key, sums.FieldName(i));
    EXPECT_EQ(item.Entries().first().key, "VitaminC");
    EXPECT_EQ(item.Entries()[NutrientCount - 1].key, "Cholesterol");
}

TEST_F(ScaledFoodTest, ARecipeWithoutIngredientsIsAllZeros) {
    const ScaledFood item = ScaledFood::FromRecipe(AddRecipe("Air", "1 breath"), 3);
    for (int i = 0; i < NutrientCount; ++i) {
        EXPECT_FALSE(item.Entries()[i].value.isNull());
        EXPECT_EQ(item.Entries()[i].value.toDouble(), 0);
    }
}

TEST(LogixTest, TheSumStatementIsOneTextWithTheKeyAtItsEnd) {
    EXPECT_EQ(
        RecipeSumSQL(42),
        "SELECT Sum(Ingredients.VitaminC) AS [VitaminC],Sum(Ingredients.VitaminE) AS "
        "[VitaminE],Sum(Ingredients.VitaminB12) AS [VitaminB12], Sum(Ingredients.VitaminB6) AS "
        "[VitaminB6],Sum(Ingredients.VitaminA) AS [VitaminA],Sum(Ingredients.SatFat) AS "
        "[SatFat],Sum(Ingredients.Potassium) AS [Potassium],Sum(Ingredients.PolyFat) AS "
        "[PolyFat],Sum(Ingredients.MonoFat) AS [MonoFat], Sum(Ingredients.Folate) AS "
        "[Folate],Sum(Ingredients.Water) AS [Water], Sum(Ingredients.Calories) AS "
        "[Calories],Sum(Ingredients.Protein) AS [Protein], Sum(Ingredients.TotalFat) AS "
        "[TotalFat],Sum(Ingredients.carbs) AS [carbs], Sum(Ingredients.fiber) AS "
        "[fiber],Sum(Ingredients.Ash) AS [Ash], Sum(Ingredients.Calcium) AS "
        "[Calcium],Sum(Ingredients.Phosphorus) AS [Phosphorus], Sum(Ingredients.Iron) AS "
        "[Iron],Sum(Ingredients.Sodium) AS [Sodium], Sum(Ingredients.Magnesium) AS "
        "[Magnesium],Sum(Ingredients.Panto) AS [Panto], Sum(Ingredients.Zinc) AS "
        "[Zinc],Sum(Ingredients.Copper) AS [Copper], Sum(Ingredients.Manganese) AS "
        "[Manganese],Sum(Ingredients.Selenium) AS [Selenium], Sum(Ingredients.Thiamin) AS "
        "[Thiamin],Sum(Ingredients.Riboflavin) AS [Riboflavin], Sum(Ingredients.Niacin) AS "
        "[Niacin],Sum(Ingredients.Cholesterol) AS [Cholesterol] FROM Ingredients  WHERE "
        "RecipeID =42");
}
