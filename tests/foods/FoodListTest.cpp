#include "foods/FoodsTest.h"

#include "foods/FoodList.h"

TEST(FoodListTest, ANewListIsEmpty) {
    EXPECT_EQ(FoodList().Count(), 0);
}

TEST(FoodListTest, PositionOneIsTheFirstEntryAdded) {
    FoodList foods;
    foods.Add("Oats", false, 8, "1 cup", QVariant());
    foods.Add("Soup", true, 3, "1 bowl", "");
    EXPECT_EQ(foods.Count(), 2);
    EXPECT_EQ(foods.Item(1).FoodName, "Oats");
    EXPECT_EQ(foods.Item(2).FoodName, "Soup");
}

TEST(FoodListTest, AddReturnsTheEntryWithAllItWasGiven) {
    FoodList foods;
    const Food& food = foods.Add("Soup", true, 3, "1 bowl", QVariant());
    EXPECT_EQ(food.FoodName, "Soup");
    EXPECT_TRUE(food.isRecipe);
    EXPECT_EQ(food.ID, 3);
    EXPECT_EQ(food.ServA.toString(), "1 bowl");
    EXPECT_TRUE(food.ServB.isNull());
}

TEST(FoodListTest, ARecipeAndAFoodMayHaveTheSameKey) {
    FoodList foods;
    foods.Add("Oats", false, 3, "1 cup", "");
    foods.Add("Soup", true, 3, "1 bowl", "");
    EXPECT_EQ(foods.Item(1).ID, foods.Item(2).ID);
    EXPECT_NE(foods.Item(1).isRecipe, foods.Item(2).isRecipe);
}

TEST(FoodListTest, AKeyIsUsedOnceWhateverItsCase) {
    FoodList foods;
    foods.Add("Oats", false, 1, "", "", "a");
    EXPECT_EQ(FailureOf([&] { foods.Add("Rye", false, 2, "", "", "A"); }), 457);
    EXPECT_EQ(foods.Count(), 1);
    foods.Remove(1);
    foods.Add("Rye", false, 2, "", "", "A");
    EXPECT_EQ(foods.Item(1).FoodName, "Rye");
}

TEST(FoodListTest, RemoveClosesTheGap) {
    FoodList foods;
    for (const char* name : {"a", "b", "c"})
        foods.Add(name, false, 1, "", "");
    foods.Remove(2);
    EXPECT_EQ(foods.Count(), 2);
    EXPECT_EQ(foods.Item(2).FoodName, "c");
}

TEST(FoodListTest, WrongPositionsFail) {
    FoodList foods;
    foods.Add("a", false, 1, "", "");
    EXPECT_EQ(FailureOf([&] { foods.Item(0); }), 9);
    EXPECT_EQ(FailureOf([&] { foods.Item(2); }), 9);
    EXPECT_EQ(FailureOf([&] { foods.Remove(2); }), 9);
}

TEST(FoodListTest, IterationFollowsTheOrderOfAdding) {
    FoodList foods;
    for (const char* name : {"c", "a", "b"})
        foods.Add(name, false, 1, "", "");
    QString walked;
    for (const Food& food : foods)
        walked += food.FoodName;
    EXPECT_EQ(walked, "cab");
}
