#include "foods/FoodSearch.h"
#include "foods/FoodsTest.h"
#include "foods/SearchTerms.h"
#include "store/Connection.h"

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

TEST_F(FoodSearchTest, AFoodOfTheCatalogueIsNoRecipeAndHasItsSecondServing) {
    AddFood({.id = 1, .name = "Bread"});
    AddFood({.id = 23509, .name = "Bread of mine"});
    for (const char* term : {"bread", "br"}) {
        const FoodList found = FoodSearch::Find(SearchTerms(term), {false, true, true});
        EXPECT_EQ(found.Count(), 2);
        for (const Food& food : found) {
            EXPECT_FALSE(food.isRecipe) << term;
            EXPECT_EQ(food.ServB, "1 oz") << term;
        }
    }
}

TEST_F(FoodSearchTest, ACatalogueThatIsClosedIsAFailure) {
    FoodDB().Close();
    EXPECT_NE(FailureOf([] { FoodSearch::Find(SearchTerms("bread"), {false, true, false}); }), 0);
    EXPECT_NE(FailureOf([] { FoodSearch::Find(SearchTerms("bread"), {false, false, true}); }), 0);
}

TEST_F(FoodSearchTest, AQuotedTermFindsANameWithAnApostrophe) {
    AddFood({.id = 1, .name = "KELLOGG'S, corn"});
    const FoodList found =
        FoodSearch::Find(SearchTerms::Quoted("kellogg's corn"), {true, true, true});
    ASSERT_EQ(found.Count(), 1);
    EXPECT_EQ(found.Item(1).ID, 1);
}
