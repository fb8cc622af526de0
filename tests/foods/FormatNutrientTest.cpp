#include "foods/FoodsTest.h"

#include "foods/FormatNutrient.h"

TEST(FormatNutrientTest, ZeroHasNoDecimals) {
    EXPECT_EQ(FormatNutrient(0), "0");
    EXPECT_EQ(FormatNutrient(-0.0), "0");
}

TEST(FormatNutrientTest, AThousandthShowsThePointAndNoDecimals) {
    EXPECT_EQ(FormatNutrient(0.001), "0.");
}

TEST(FormatNutrientTest, BelowAHundredTwoDecimalsAtMost) {
    EXPECT_EQ(FormatNutrient(5), "5.");
    EXPECT_EQ(FormatNutrient(7.5), "7.5");
    EXPECT_EQ(FormatNutrient(99.994), "99.99");
    EXPECT_EQ(FormatNutrient(99.996), "100.");
    EXPECT_EQ(FormatNutrient(-250.126), "-250.13");
}

TEST(FormatNutrientTest, FromAHundredUpWholeWithThousands) {
    EXPECT_EQ(FormatNutrient(100), "100");
    EXPECT_EQ(FormatNutrient(100.49), "100");
    EXPECT_EQ(FormatNutrient(999.5), "1,000");
    EXPECT_EQ(FormatNutrient(1234567.8), "1,234,568");
}

TEST(FormatNutrientTest, EveryFormReadsBackAsAWholeNumber) {
    EXPECT_EQ(WholeNumber("0"), 0);
    EXPECT_EQ(WholeNumber("5."), 5);
    EXPECT_EQ(WholeNumber("0.5"), 0);
    EXPECT_EQ(WholeNumber("1.5"), 2);
    EXPECT_EQ(WholeNumber("-18."), -18);
    EXPECT_EQ(WholeNumber("1,234,568"), 1234568);
}

TEST(FormatNutrientTest, TooLargeANumberBecomesTheGreatestOneAndTextBecomesZero) {
    EXPECT_EQ(WholeNumber("inf"), 0);
    EXPECT_EQ(WholeNumber("9,999,999,999"), 2147483647);
}
