#include "foods/SearchTerms.h"

#include <gtest/gtest.h>

TEST(SearchTermsTest, OneWordGivesTheThreeStatements) {
    const SearchTerms terms("milk");
    EXPECT_EQ(terms.RecipeSQL(), "SELECT TOP 300 RecipeName,RecipeID,ServingName FROM Recipes "
                                 "WHERE RECIPENAME LIKE '%milk%'  ORDER BY RecipeName");
    EXPECT_EQ(terms.CustomSQL(),
              "SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE FoodName "
              "LIKE '%milk%'  AND ID > 23508 ORDER BY FoodName");
    EXPECT_EQ(terms.StockSQL(),
              "SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE FoodName "
              "LIKE '%milk%'  AND ID <= 23508 ORDER BY FoodName");
}

TEST(SearchTermsTest, EveryWordButTheLastIsFollowedByAnd) {
    EXPECT_EQ(SearchTerms("whole milk").CustomSQL(),
              "SELECT TOP 300 FoodName,ID,Serv_Desc_A,Serv_Desc_B  FROM FOODS WHERE FoodName "
              "LIKE '%whole%' AND FoodName LIKE '%milk%'  AND ID > 23508 ORDER BY FoodName");
    EXPECT_EQ(SearchTerms("a b").RecipeSQL(),
              "SELECT TOP 300 RecipeName,RecipeID,ServingName FROM Recipes WHERE RECIPENAME LIKE "
              "'%a%' AND RECIPENAME LIKE '%b%'  ORDER BY RecipeName");
}

TEST(SearchTermsTest, OneBlankIsTwoEmptyWords) {
    EXPECT_EQ(SearchTerms(" ").Words(), QStringList({"", ""}));
    EXPECT_TRUE(SearchTerms(" ").StockSQL().contains(
        "WHERE FoodName LIKE '%%' AND FoodName LIKE '%%'  AND ID <= 23508"));
}

TEST(SearchTermsTest, TwoBlanksBetweenWordsGiveAnEmptyOneInTheMiddle) {
    EXPECT_EQ(SearchTerms("a  b").Words(), QStringList({"a", "", "b"}));
    EXPECT_TRUE(SearchTerms("a  b").StockSQL().contains(
        "LIKE '%a%' AND FoodName LIKE '%%' AND FoodName LIKE '%b%'  AND"));
}

TEST(SearchTermsTest, BlanksAtTheEndsGiveEmptyWords) {
    EXPECT_EQ(SearchTerms(" a ").Words(), QStringList({"", "a", ""}));
}

TEST(SearchTermsTest, OtherWhiteSpaceIsPartOfAWord) {
    EXPECT_EQ(SearchTerms("a\tb").Words(), QStringList({"a\tb"}));
}

TEST(SearchTermsTest, TheTermGoesInAsItStands) {
    EXPECT_TRUE(SearchTerms("50%_[x]'").StockSQL().contains("LIKE '%50%_[x]'%' "));
}

TEST(SearchTermsTest, AnEmptyTermAndOneThatIsTooLongAreRefused) {
    EXPECT_EQ(SearchTerms::Refusal(""), "Please enter a search term.");
    EXPECT_EQ(SearchTerms::Refusal(" "), "");
    EXPECT_EQ(SearchTerms::Refusal(QString(255, u'a')), "");
    EXPECT_EQ(SearchTerms::Refusal(QString(256, u'a')),
              "Please enter a search term of 255 characters or less.");
}
