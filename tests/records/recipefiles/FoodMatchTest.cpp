#include "records/recipefiles/FoodMatch.h"

#include "foods/CustomFoods.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/RecordsTest.h"

class FoodMatchTest : public RecordsTest {
protected:
    FoodMatch Match(const QString& line) const {
        const RecordsReading records(Records());
        const auto match = FoodMatch::Of(line);
        EXPECT_TRUE(match) << line.toStdString();
        return match.value_or(FoodMatch());
    }
};

TEST_F(FoodMatchTest, PlainFoodsWinOverLongNames) {
    EXPECT_EQ(Match("1 tsp salt").name, "Salt, table");
    EXPECT_EQ(Match("2 cups chopped carrots").name, "Carrots, raw");
    EXPECT_EQ(Match("1 cup lentils").name, "Lentils, raw");
    EXPECT_EQ(Match("1 onion").name, "Onions, raw");
    EXPECT_EQ(Match("2 tbsp olive oil").name, "Oil, olive, salad or cooking");
}

TEST_F(FoodMatchTest, VolumesAreConverted) {
    const FoodMatch salt = Match("1 tsp salt");
    EXPECT_EQ(salt.serving, "A");
    ASSERT_TRUE(salt.quantity);
    EXPECT_NEAR(*salt.quantity, 1 / 48.0, 1e-12);
    EXPECT_NEAR(*Match("2 tbsp olive oil").quantity, 2, 1e-12);
    EXPECT_NEAR(*Match("1 1/2 cups lentils").quantity, 1.5, 1e-12);
}

TEST_F(FoodMatchTest, WeightsAreConvertedByTheWeightOfTheServing) {
    EXPECT_NEAR(*Match("384 g lentils").quantity, 2, 1e-12);
    EXPECT_NEAR(*Match("1 lb carrots").quantity, 453.59237 / 128, 1e-12);
}

TEST_F(FoodMatchTest, WhatNoServingExpressesHasNoQuantity) {
    EXPECT_FALSE(Match("1 onion").quantity);
    EXPECT_FALSE(Match("salt to taste").quantity);
    EXPECT_FALSE(Match("500 cups lentils").quantity);
}

TEST_F(FoodMatchTest, AnOwnFoodHasItsWeightInWords) {
    {
        RecordsChange change(Records());
        CustomFoods::Save(CustomFoods::Append(), {"Zzyzx flakes", "1 cup, dry (80 g)", {}});
        change.Commit();
    }
    EXPECT_NEAR(*Match("40 g zzyzx flakes").quantity, .5, 1e-12);
    EXPECT_NEAR(*Match("2 cups of Zzyzx flakes").quantity, 2, 1e-12);
    EXPECT_EQ(Match("zzyzx flake").key, 23509);
}

TEST_F(FoodMatchTest, WordsThatNoFoodHasAreDroppedFromTheFirst) {
    EXPECT_EQ(Match("1 cup wonderful lentils").name, "Lentils, raw");
    const RecordsReading records(Records());
    EXPECT_FALSE(FoodMatch::Of("1 cup xyzzy"));
    EXPECT_FALSE(FoodMatch::Of(""));
    EXPECT_FALSE(FoodMatch::Of("'; % \" *"));
    EXPECT_FALSE(FoodMatch::Of("1 cup lentils" + QString(1'000'000, 'x')));
}
