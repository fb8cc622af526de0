#include "analysis/LoggedDays.h"

#include "AnalysisTest.h"
#include "model/User.h"

namespace {

const Period April{QDate(2002, 4, 1), QDate(2002, 4, 30)};

class LoggedDaysTest : public AnalysisTest {
protected:
    static QList<int> Set(const LoggedDays::Days& days) {
        QList<int> set;
        for (size_t day = 0; day < days.size(); ++day)
            if (days[day])
                set << int(day);
        return set;
    }
};

} // namespace

TEST_F(LoggedDaysTest, ADayWithFoodCountsOnceAndWithoutCaloriesToo) {
    EatCalories(100, QDate(2002, 4, 1));
    EatCalories(100, QDate(2002, 4, 1));
    EatCalories(0, QDate(2002, 4, 30));
    EXPECT_EQ(Set(LoggedDays::WithFood(April)), QList<int>({1, 30}));
    EXPECT_EQ(Set(LoggedDays::WithWeight(April)), QList<int>());
}

TEST_F(LoggedDaysTest, AWeightOfZeroDoesNotCount) {
    Weigh(0, QDate(2002, 4, 2));
    Weigh(160.5, QDate(2002, 4, 3));
    EXPECT_EQ(Set(LoggedDays::WithWeight(April)), QList<int>({3}));
    EXPECT_EQ(Set(LoggedDays::WithFood(April)), QList<int>());
}

TEST_F(LoggedDaysTest, OtherMonthsAndOtherUsersDoNotCount) {
    for (const QDate day : {QDate(2002, 3, 31), QDate(2002, 5, 1), QDate(2001, 4, 9)}) {
        EatCalories(100, day);
        Weigh(160, day);
    }
    EatAs(User::Current().UID + 1, {{"Calories", 100}}, QDate(2002, 4, 9));
    EXPECT_EQ(Set(LoggedDays::WithFood(April)), QList<int>());
    EXPECT_EQ(Set(LoggedDays::WithWeight(April)), QList<int>());
}

TEST_F(LoggedDaysTest, DaysWithFoodAreCountedOverAnyPeriod) {
    for (const QDate day : {QDate(2002, 3, 31), QDate(2002, 4, 9), QDate(2002, 4, 9)})
        EatCalories(100, day);
    EXPECT_EQ(LoggedDays::CountWithFood({QDate(2002, 1, 1), QDate(2002, 12, 31)}), 2);
    EXPECT_EQ(LoggedDays::CountWithFood(April), 1);
}
