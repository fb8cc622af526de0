#include "analysis/WeightAxis.h"

#include <gtest/gtest.h>

namespace {

std::vector<qint64> LabelsOf(const WeightAxis& axis) {
    std::vector<qint64> labels;
    for (int i = 0; i < WeightAxis::LabelCount; ++i)
        labels.push_back(axis.Label(i));
    return labels;
}

} // namespace

TEST(WeightAxisTest, AConstantWeightOverFewDaysTakesSinglePounds) {
    EXPECT_EQ(LabelsOf(WeightAxis(150, 150, 0)),
              (std::vector<qint64>{157, 156, 155, 154, 153, 152, 151, 150}));
    EXPECT_EQ(LabelsOf(WeightAxis(150, 150, 8)), LabelsOf(WeightAxis(150, 150, 0)));
}

TEST(WeightAxisTest, AConstantWeightOverAHundredDaysTakesStepsOfThirteen) {
    EXPECT_EQ(LabelsOf(WeightAxis(150, 150, 100)),
              (std::vector<qint64>{241, 228, 215, 202, 189, 176, 163, 150}));
}

TEST(WeightAxisTest, EightMoreDaysMakeTheStepOnePoundLarger) {
    EXPECT_EQ(WeightAxis(150, 150, 9).Label(6), 152);
    EXPECT_EQ(WeightAxis(150, 150, 16).Label(6), 152);
    EXPECT_EQ(WeightAxis(150, 150, 17).Label(6), 153);
    EXPECT_EQ(WeightAxis(150, 150, 3652).Label(6), 150 + 457);
}

TEST(WeightAxisTest, TheStepIsASeventhOfTheRangeRounded) {
    EXPECT_EQ(WeightAxis(100, 110, 0).Label(6), 101); // 1.43
    EXPECT_EQ(WeightAxis(100, 111, 0).Label(6), 102); // 1.57
    EXPECT_EQ(WeightAxis(100, 170, 0).Label(6), 110);
}

TEST(WeightAxisTest, TheTopLabelMayLieBelowTheGreatestWeight) {
    EXPECT_EQ(WeightAxis(100, 110, 0).Label(0), 107);
}

TEST(WeightAxisTest, AWeightEqualToALabelStandsAtTheMiddleOfTheLabel) {
    const WeightAxis axis(150, 157, 0);
    const int middles[] = {675, 1335, 1995, 2655, 3330, 3990, 4650, 5310};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(axis.Y(157 - i), middles[i]) << i;
}

TEST(WeightAxisTest, AWeightBetweenTwoLabelsStandsInProportion) {
    const WeightAxis axis(150, 157, 0);
    EXPECT_EQ(axis.Y(156.5), 1005);
    EXPECT_EQ(axis.Y(153.25), 3161); // 3330 - 675 * .25 = 3161.25
    EXPECT_EQ(axis.Y(150.1), 5244);
    const WeightAxis coarse(150, 151, 100);
    EXPECT_EQ(coarse.Y(151), 5259); // 5310 - 660 / 13 = 5259.23
}

TEST(WeightAxisTest, PlacesAreRoundedHalfToEven) {
    const WeightAxis axis(0, 8 * 7, 0);              // steps of 8, 660 twips each
    EXPECT_EQ(axis.Y(.125), 5300);                   // 5310 - 10.3125
    EXPECT_EQ(WeightAxis(0, 4 * 7, 0).Y(.5), 5228);  // 5310 - 82.5 = 5227.5
    EXPECT_EQ(WeightAxis(0, 4 * 7, 0).Y(1.5), 5062); // 5310 - 247.5 = 5062.5
}

TEST(WeightAxisTest, TheDivisionComesLastSoThatAHalfTwipStaysOne) {
    const WeightAxis axis(150, 210, 112);
    EXPECT_EQ(axis.Label(3), 206);
    EXPECT_EQ(axis.Label(4), 192);
    EXPECT_EQ(axis.Y(204.6), 2722); // 3330 - 675 * 12.6 / 14 = 2722.5
}

TEST(WeightAxisTest, AWeightAboveTheTopLabelHasAScaleOfItsOwn) {
    const WeightAxis axis(100, 110, 0); // labels 100 to 107
    EXPECT_EQ(axis.Y(110), 675);
    EXPECT_EQ(axis.Y(108), 675 + 2 * 165);
    EXPECT_EQ(axis.Y(107), 675);
    EXPECT_EQ(axis.Y(107.5), 1088); // 675 + 412.5
}

TEST(WeightAxisTest, AWeightBelowTheRoundedLeastUsesThatScaleToo) {
    const WeightAxis axis(152, 152, 0); // of 151.5
    EXPECT_EQ(axis.Y(151.5), 675 + 825);
}

TEST(WeightAxisTest, TheHeaviestWeightsDoNotOverflow) {
    const WeightAxis axis(1, 2147483647, 0);
    EXPECT_EQ(axis.Label(7), 1);
    EXPECT_EQ(axis.Label(6), 1 + 306783378);
    EXPECT_EQ(axis.Y(2147483647), 675);
    EXPECT_EQ(WeightAxis(2147483647, 2147483647, 3652).Label(0), 2147483647LL + 7 * 457);
}
