#include "foods/CustomFoods.h"
#include "foods/FoodsTest.h"

#include "foods/ScaledFood.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

namespace {
using Part = CustomFoodProblem::Part;

CustomFood Muesli() {
    CustomFood food{"Muesli", "1 bowl", {}};
    double amount = 0.25;
    for (const NutrientInfo& nutrient : Nutrients())
        food.amounts.Set(nutrient.id, amount++);
    return food;
}

void ExpectProblem(const CustomFood& food, Part part, const char* message) {
    const CustomFoodProblem problem = food.FirstProblem();
    EXPECT_TRUE(problem);
    EXPECT_EQ(problem.part, part);
    EXPECT_EQ(problem.message, message);
}

class CustomFoodsTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        AddFood({.id = 23508, .name = "Last stock food"});
    }

    QVariant Stored(const char* column, qint32 id) {
        return Foods(QStringLiteral("SELECT %1 FROM FOODS WHERE ID = %2")
                         .arg(QLatin1String(column))
                         .arg(id));
    }
};
} // namespace

// Rules

TEST(CustomFood, WithNameAndServingHasNoProblem) {
    EXPECT_FALSE(Muesli().FirstProblem());
    EXPECT_FALSE((CustomFood{"O'Brien's", " ", {}}).FirstProblem());
}

TEST(CustomFood, EachRefusedCharacterIsAProblemOfNameOrServing) {
    for (const char* text : {"a^b", "~", "8\""}) {
        CustomFood food = Muesli();
        food.name = text;
        ExpectProblem(food, Part::Name,
                      "Food names cannot contain the special characters '~', '^' or \".");
        food = Muesli();
        food.serving = text;
        ExpectProblem(food, Part::Serving,
                      "Serving names cannot contain the special characters '~', '^' or \".");
    }
}

TEST(CustomFood, NeedsANameAndAServing) {
    CustomFood food;
    ExpectProblem(food, Part::Name, "Please give your custom food a name.");
    food.name = "Muesli";
    ExpectProblem(food, Part::Serving, "Please give your custom food a serving size.");
}

TEST(CustomFood, ARefusedServingComesBeforeAMissingName) {
    EXPECT_EQ((CustomFood{"", "~", {}}).FirstProblem().part, Part::Serving);
}

TEST(CustomFood, AnAmountBeyondAMillionIsAProblemOfThatNutrient) {
    CustomFood food = Muesli();
    for (const double amount : {1000000.5, -3e9, 1e300}) {
        food.amounts.Set(Nutrient::Panto, amount);
        ExpectProblem(food, Part::Amount,
                      "The amount of Panto. Adic (mg) is too large. Please enter a number up to "
                      "1,000,000.");
        EXPECT_EQ(food.FirstProblem().nutrient, Nutrient::Panto);
    }
    food.amounts.Set(Nutrient::Panto, 1000000);
    EXPECT_FALSE(food.FirstProblem());
}

// Rows

TEST_F(CustomFoodsTest, TheFirstKeyComesAfterTheLastStockFood) {
    EXPECT_EQ(CustomFoods::Append(), 23509);
    EXPECT_EQ(CustomFoods::Append(), 23510);
    EXPECT_TRUE(Stored("FoodName", 23509).isNull());
}

TEST_F(CustomFoodsTest, ASavedFoodIsReadBackAsItWas) {
    const qint32 id = CustomFoods::Append();
    CustomFoods::Save(id, Muesli());
    const CustomFood read = CustomFoods::Read(id);
    EXPECT_EQ(read.name, "Muesli");
    EXPECT_EQ(read.serving, "1 bowl");
    EXPECT_EQ(read.amounts, Muesli().amounts);
    EXPECT_EQ(Stored("Serv_GM_WT_A", id).toDouble(), 100);
    EXPECT_TRUE(Stored("Serv_Desc_B", id).isNull());
    EXPECT_TRUE(Stored("Serv_GM_WT_B", id).isNull());
}

TEST_F(CustomFoodsTest, AFoodThatHoldsItsKeyAloneHasNoNameAndNoAmounts) {
    const CustomFood read = CustomFoods::Read(CustomFoods::Append());
    EXPECT_EQ(read.name, "");
    EXPECT_EQ(read.serving, "");
    EXPECT_EQ(read.amounts, NutrientAmounts());
}

TEST_F(CustomFoodsTest, AmountsLoseTheirSignAndMissingOnesAreSavedAsZero) {
    CustomFood food{"Muesli", "1 bowl", {}};
    food.amounts.Set(Nutrient::Calories, -5.5);
    const qint32 id = CustomFoods::Append();
    CustomFoods::Save(id, food);
    EXPECT_EQ(Stored("Calories", id).toDouble(), 5.5);
    EXPECT_FALSE(Stored("Zinc", id).isNull());
    EXPECT_EQ(Stored("Zinc", id).toDouble(), 0);
}

TEST_F(CustomFoodsTest, TheAmountsAreThoseOfOneServing) {
    const qint32 id = CustomFoods::Append();
    CustomFoods::Save(id, Muesli());
    const ScaledFood two = ScaledFood::FromCatalogue(id, "A", 2);
    for (const NutrientInfo& nutrient : Nutrients())
        EXPECT_DOUBLE_EQ(two.Amount(QLatin1String(nutrient.logColumn)),
                         2 * *Muesli().amounts[nutrient.id])
            << nutrient.property;
}

TEST_F(CustomFoodsTest, OnlyOwnFoodsAreListedByName) {
    AddFood({.id = 23510, .name = "apple cake"});
    AddFood({.id = 23509, .name = "Bread"});
    const QList<NamedKey> foods = CustomFoods::Names();
    ASSERT_EQ(foods.size(), 2);
    EXPECT_EQ(foods[0].name, "apple cake");
    EXPECT_EQ(foods[0].key, 23510);
    EXPECT_EQ(foods[1].key, 23509);
}

TEST_F(CustomFoodsTest, DeletingTakesOneFood) {
    AddFoods(2, 23509, "food");
    CustomFoods::Delete(23509);
    EXPECT_EQ(CustomFoods::Names().size(), 1);
    EXPECT_EQ(Stored("FoodName", 23510), "food 002");
}

TEST_F(CustomFoodsTest, AKeyWithoutARowFails) {
    EXPECT_EQ(FailureOf([] { CustomFoods::Read(23509); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(FailureOf([] { CustomFoods::Save(23509, Muesli()); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(FailureOf([] { CustomFoods::Delete(23509); }), ErrorNumber::NoCurrentRecord);
}
