#include "analysis/DateAxis.h"

#include <gtest/gtest.h>

namespace {

const QDate First(2002, 4, 3);

struct Label {
    int index, day;
    double left;
    bool operator==(const Label&) const = default;
};

std::vector<Label> LabelsOf(const DateAxis& axis) {
    std::vector<Label> labels;
    for (const DateAxis::Label& label : axis.Labels())
        labels.push_back({label.index, int(First.daysTo(label.day)), label.left});
    return labels;
}

DateAxis Over(int days) {
    return DateAxis(First, First.addDays(days));
}

} // namespace

TEST(DateAxisTest, ASingleDayHasOneLabelInTheMiddleAndNoScale) {
    const DateAxis axis = Over(0);
    EXPECT_EQ(LabelsOf(axis), (std::vector<Label>{{0, 0, 945 + 4100.0}}));
    EXPECT_EQ(axis.TwipsPerDay(), 0);
    EXPECT_EQ(axis.X(First, 5540.5), 5540);
}

TEST(DateAxisTest, TwoDaysStandAtBothEnds) {
    const DateAxis axis = Over(1);
    EXPECT_EQ(LabelsOf(axis), (std::vector<Label>{{0, 0, 945.0}, {4, 1, 9145.0}}));
    EXPECT_EQ(axis.TwipsPerDay(), 8200);
}

TEST(DateAxisTest, ThreeDaysHaveOneInTheMiddle) {
    const DateAxis axis = Over(2);
    EXPECT_EQ(LabelsOf(axis), (std::vector<Label>{{0, 0, 945.0}, {2, 1, 5045.0}, {4, 2, 9145.0}}));
    EXPECT_EQ(axis.TwipsPerDay(), 4100);
}

TEST(DateAxisTest, FourDaysLeaveTheMiddleLabelOut) {
    const DateAxis axis = Over(3);
    EXPECT_EQ(LabelsOf(axis), (std::vector<Label>{{0, 0, 945.0},
                                                  {1, 1, 945 + 8200.0 / 3},
                                                  {3, 2, 945 + 2 * 8200.0 / 3},
                                                  {4, 3, 9145.0}}));
    EXPECT_EQ(axis.TwipsPerDay(), 2733);
}

TEST(DateAxisTest, FromFourDaysOnFiveLabelsStandAQuarterApart) {
    const DateAxis axis = Over(4);
    EXPECT_EQ(LabelsOf(axis),
              (std::vector<Label>{
                  {0, 0, 945.0}, {1, 1, 2995.0}, {2, 2, 5045.0}, {3, 3, 7095.0}, {4, 4, 9145.0}}));
    EXPECT_EQ(axis.TwipsPerDay(), 2050);
}

TEST(DateAxisTest, TenDaysTakeStepsOfThreeAndTheLastLabelLiesPastTheLastDay) {
    const DateAxis axis = Over(10);
    std::vector<int> days;
    for (const Label& label : LabelsOf(axis))
        days.push_back(label.day);
    EXPECT_EQ(days, (std::vector{0, 3, 6, 9, 12}));
    EXPECT_EQ(axis.TwipsPerDay(), 683);
    EXPECT_LT(axis.X(First.addDays(10), 1440), 1440 + 8200);
}

TEST(DateAxisTest, TheStepIsAQuarterOfTheDaysRoundedUp) {
    const std::pair<int, int> steps[] = {{4, 1},    {5, 2},    {6, 2},      {7, 2},     {8, 2},
                                         {9, 3},    {13, 4},   {14, 4},     {15, 4},    {17, 5},
                                         {29, 8},   {30, 8},   {364, 91},   {365, 92},  {366, 92},
                                         {367, 92}, {370, 93}, {3650, 913}, {3652, 913}};
    for (const auto& [days, step] : steps)
        EXPECT_EQ(First.daysTo(Over(days).Labels()[1].day), step) << days;
}

TEST(DateAxisTest, TheScaleIsRoundedHalfToEven) {
    EXPECT_EQ(Over(3280).TwipsPerDay(), 2);  // 2.5
    EXPECT_EQ(Over(3276).TwipsPerDay(), 3);  // 2.503
    EXPECT_EQ(Over(3652).TwipsPerDay(), 2);  // 2.245
    EXPECT_EQ(Over(16400).TwipsPerDay(), 0); // 0.5
    EXPECT_EQ(Over(16396).TwipsPerDay(), 1); // 0.5001
    EXPECT_EQ(Over(36525).TwipsPerDay(), 0);
}

TEST(DateAxisTest, LabelsOfAnySpanStandAtTheSamePlaces) {
    for (int days = 4; days <= 5000; days += 7) {
        const DateAxis axis = Over(days);
        ASSERT_EQ(axis.Labels().size(), 5U);
        for (int k = 0; k < 5; ++k)
            EXPECT_EQ(axis.Labels()[size_t(k)].left, 945 + k * 2050.0);
        EXPECT_GE(First.daysTo(axis.Labels()[4].day), days);
    }
}
