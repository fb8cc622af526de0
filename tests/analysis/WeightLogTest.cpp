#include "analysis/WeightLog.h"

#include "AnalysisTest.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"

namespace {

const Period April{QDate(2002, 4, 1), QDate(2002, 4, 30)};

class WeightLogTest : public AnalysisTest {};

} // namespace

TEST_F(WeightLogTest, TheAverageIsRoundedHalfToEven) {
    Weigh(180, April.from);
    Weigh(181, April.to);
    EXPECT_EQ(WeightLog::Average(April), 180);
    Users("UPDATE USER_WEIGHTS SET Weight = Weight + 1");
    EXPECT_EQ(WeightLog::Average(April), 182);
}

TEST_F(WeightLogTest, WeightsOfZeroAndOutsideThePeriodDoNotCount) {
    Weigh(150, April.from);
    Weigh(0, April.from.addDays(1));
    Weigh(300, April.from.addDays(-1));
    Weigh(300, April.to.addDays(1));
    EXPECT_EQ(WeightLog::Average(April), 150);
    const auto [min, max] = WeightLog::LeastAndGreatest(April);
    EXPECT_EQ(min, 150);
    EXPECT_EQ(max, 150);
    EXPECT_EQ(WeightLog::Entries(April).size(), 1U);
}

TEST_F(WeightLogTest, WithoutAnEntryThereIsNeitherAnAverageNorExtremes) {
    EXPECT_EQ(FailureOf([] { WeightLog::Average(April); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(FailureOf([] { WeightLog::LeastAndGreatest(April); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_TRUE(WeightLog::Entries(April).empty());
}
