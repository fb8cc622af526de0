#include "exchange/Documents.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace exchange;

namespace {
Recipe ReadBack(const Recipe& recipe) {
    return Documents::Read(Documents::RecipeDocument(recipe),
                           Documents::IngredientsDocument(recipe));
}
} // namespace

TEST(DocumentsTest, ARecipeComesBack) {
    Recipe recipe;
    recipe.id = 2'147'483'647;
    recipe.name = "Crème \"brûlée\" \\ 🍮";
    recipe.servingName = std::string("a\0b\x01\x1f", 5);
    recipe.instructions = "1.\tCut\r\n2. Boil";
    recipe.yield = 0.1;
    recipe.prepTime = 45.5;
    recipe.ingredients.resize(2);
    recipe.ingredients[0].foodName = "Lentils";
    recipe.ingredients[0].serving = "1 cup";
    recipe.ingredients[1].nutrients.fill(1.5);
    const auto read = ReadBack(recipe);
    EXPECT_EQ(read.id, recipe.id);
    EXPECT_EQ(read.name, recipe.name);
    EXPECT_EQ(read.servingName, recipe.servingName);
    EXPECT_EQ(read.instructions, recipe.instructions);
    EXPECT_EQ(read.yield, recipe.yield);
    EXPECT_EQ(read.prepTime, recipe.prepTime);
    ASSERT_EQ(read.ingredients.size(), 2U);
    EXPECT_EQ(read.ingredients[0].foodName, "Lentils");
    EXPECT_EQ(read.ingredients[0].serving, "1 cup");
    EXPECT_EQ(read.ingredients[0].nutrients, recipe.ingredients[0].nutrients);
    EXPECT_EQ(read.ingredients[1].nutrients, recipe.ingredients[1].nutrients);
}

TEST(DocumentsTest, WhatIsEmptyStaysEmpty) {
    const auto read = ReadBack({});
    EXPECT_FALSE(read.name || read.servingName || read.yield || read.instructions || read.prepTime);
    EXPECT_TRUE(read.ingredients.empty());
}

TEST(DocumentsTest, EveryNumberComesBackExactly) {
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0, -0.0, 0.1, 1e22, 1e21, 123456789012345680000.0, 1e300, -5e-324,
                                Limits::max(), Limits::min(), Limits::lowest()}) {
        Recipe recipe;
        recipe.yield = number;
        recipe.ingredients.resize(1);
        recipe.ingredients[0].nutrients[30] = number;
        const auto read = ReadBack(recipe);
        EXPECT_EQ(read.yield, number);
        EXPECT_EQ(read.ingredients[0].nutrients[30], number);
        EXPECT_EQ(std::signbit(*read.yield), std::signbit(number));
    }
}

TEST(DocumentsTest, AQuantityStandsInTheServing) {
    Recipe recipe;
    recipe.ingredients.resize(1);
    recipe.ingredients[0].serving = "1 cup";
    recipe.ingredients[0].quantity = 1.5;
    const auto read = ReadBack(recipe);
    EXPECT_EQ(read.ingredients[0].serving, "1.5 x 1 cup");
    EXPECT_FALSE(read.ingredients[0].quantity);
}
