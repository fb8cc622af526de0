#include "foods/FoodSearch.h"
#include "foods/FoodsTest.h"
#include "foods/SearchTerms.h"

class FoodSearchTest : public FoodsTest {};

TEST_F(FoodSearchTest, AKeyFindsTheFoodOrTheRecipeWithIt) {
    AddFood({.id = 1, .name = "Bread"});
    ASSERT_EQ(AddRecipe("Soup", "1 bowl"), 1);
    EXPECT_EQ(FoodSearch::WithKey(1, false)->FoodName, "Bread");
    EXPECT_EQ(FoodSearch::WithKey(1, false)->ServB, "1 oz");
    EXPECT_EQ(FoodSearch::WithKey(1, true)->FoodName, "Soup");
    EXPECT_TRUE(FoodSearch::WithKey(1, true)->isRecipe);
}

TEST_F(FoodSearchTest, AKeyThatNothingHasFindsNothing) {
    EXPECT_FALSE(FoodSearch::WithKey(1, false));
    EXPECT_FALSE(FoodSearch::WithKey(-1, true));
}

TEST_F(FoodSearchTest, AQuotedTermFindsANameWithAnApostrophe) {
    AddFood({.id = 1, .name = "KELLOGG'S, corn"});
    const FoodList found =
        FoodSearch::Find(SearchTerms::Quoted("kellogg's corn"), {true, true, true});
    ASSERT_EQ(found.Count(), 1);
    EXPECT_EQ(found.Item(1).ID, 1);
}
