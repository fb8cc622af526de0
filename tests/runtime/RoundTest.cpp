#include "runtime/Round.h"
#include "support/Failure.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

TEST(Round, TakesTheNearestWholeNumber) {
    EXPECT_EQ(Round(0), 0);
    EXPECT_EQ(Round(1.4), 1);
    EXPECT_EQ(Round(1.6), 2);
    EXPECT_EQ(Round(-1.6), -2);
    EXPECT_EQ(Round(0.49999999999999994), 0);
}

TEST(Round, TakesTheEvenNeighbourOfAHalf) {
    EXPECT_EQ(Round(0.5), 0);
    EXPECT_EQ(Round(1.5), 2);
    EXPECT_EQ(Round(2.5), 2);
    EXPECT_EQ(Round(150.5), 150);
    EXPECT_EQ(Round(151.5), 152);
    EXPECT_EQ(Round(-0.5), 0);
    EXPECT_EQ(Round(-1.5), -2);
    EXPECT_EQ(Round(-2.5), -2);
}

TEST(Round, ReachesBothEndsOfTheRange) {
    EXPECT_EQ(Round(2147483647), std::numeric_limits<qint32>::max());
    EXPECT_EQ(Round(2147483647.4), std::numeric_limits<qint32>::max());
    EXPECT_EQ(Round(-2147483648.0), std::numeric_limits<qint32>::min());
    EXPECT_EQ(Round(-2147483648.5), std::numeric_limits<qint32>::min());
}

TEST(RoundForDisplay, TakesTheBoundForWhatIsBeyondItAndZeroForNoNumber) {
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(RoundForDisplay(2.5), 2);
    EXPECT_EQ(RoundForDisplay(inf), std::numeric_limits<qint32>::max());
    EXPECT_EQ(RoundForDisplay(-1e308), std::numeric_limits<qint32>::min());
    EXPECT_EQ(RoundForDisplay(std::nan("")), 0);
}

TEST(Round, OverflowsBeyondTheRange) {
    const double inf = std::numeric_limits<double>::infinity();
    for (double value : {2147483647.5, 2147483648.0, -2147483648.6, 1e308, inf, -inf, std::nan("")})
        EXPECT_EQ(FailureOf([&] { Round(value); }), ErrorNumber::Overflow) << value;
}
