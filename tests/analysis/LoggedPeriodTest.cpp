#include "analysis/LoggedPeriod.h"

#include "AnalysisTest.h"
#include "Statements.h"
#include "analysis/LoggedSums.h"
#include "model/User.h"
#include "store/Recordset.h"

#include <bit>
#include <cmath>
#include <random>

namespace {
const QDate FirstDay(2001, 1, 1);
constexpr int LogDays = 1500;
const Period All{FirstDay, FirstDay.addDays(LogDays - 1)};

class LoggedPeriodTest : public AnalysisTest {
protected:
    void EatAtRandom(int times) {
        SQLite::Transaction together(UserDB().Raw());
        for (int i = 0; i < times; ++i) {
            Amounts amounts;
            for (const NutrientInfo& nutrient : Nutrients())
                amounts[QLatin1String(nutrient.logColumn)] = Amount();
            Eat(amounts, FirstDay.addDays(int(random_() % LogDays)));
        }
        Users(QStringLiteral("UPDATE USER_FOODS SET Zinc = NULL WHERE RecID % 3 = 0"));
        together.commit();
    }
    double Amount() {
        const int size = random_() % 10 == 0 ? int(random_() % 60) - 40 : 0;
        return std::ldexp(double(random_() % 100'000) / 777, size);
    }
    static Nuts SumsOfTheStatement(const Period& period) {
        const Recordset row(
            UserDB(), NutrientSumSQL(QStringLiteral("USER_FOODS")) + " FROM USER_FOODS WHERE UID=" +
                          QString::number(User::Current().UID) + " AND " + period.Condition());
        Nuts sums;
        for (const NutrientInfo& nutrient : Nutrients())
            sums.Set(nutrient.id, row[QLatin1String(nutrient.logColumn)].NumberOr(0));
        return sums;
    }
    static void ExpectSameBits(const Nuts& figures, const Nuts& expected) {
        for (const NutrientInfo& nutrient : Nutrients())
            EXPECT_EQ(std::bit_cast<std::uint64_t>(figures[nutrient.id]),
                      std::bit_cast<std::uint64_t>(expected[nutrient.id]))
                << nutrient.property;
    }

    std::mt19937 random_{20261122};
};
} // namespace

TEST_F(LoggedPeriodTest, SumsAndAverageEqualThoseOfTheStatementsToTheLastBit) {
    EatAtRandom(2000);
    for (const int days : {20, 100, 700, LogDays - 1}) {
        const Period period{FirstDay.addDays(LogDays - 1 - days), All.to};
        LoggedPeriod logged(period);
        ASSERT_TRUE(logged.Sums());
        ExpectSameBits(*logged.Sums(), SumsOfTheStatement(period));
        ASSERT_TRUE(logged.AverageEnergy());
        ExpectSameBits(*logged.AverageEnergy(), *LoggedSums::AverageEnergy(period));
    }
}

TEST_F(LoggedPeriodTest, IsReadOnceAndOnlyWhenAsked) {
    for (int day = 0; day < 5; ++day)
        EatCalories(100, FirstDay.addDays(day));
    const Statements statements(UserDB());
    LoggedPeriod logged({FirstDay, FirstDay.addDays(300)});
    EXPECT_EQ(statements.list.size(), 0);
    EXPECT_TRUE(logged.Sums());
    EXPECT_EQ(logged.Days(), 5);
    EXPECT_TRUE(logged.AverageEnergy());
    EXPECT_EQ(statements.list.size(), 1);
}

TEST_F(LoggedPeriodTest, FoodWithoutKnownCaloriesCountsAsNone) {
    EatCalories(100, FirstDay);
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = NULL"));
    LoggedPeriod logged(All);
    EXPECT_FALSE(logged.Sums());
    EXPECT_FALSE(logged.AverageEnergy());
}

TEST_F(LoggedPeriodTest, ASumBeyondEveryBoundIsTheBound) {
    EatCalories(1e308, FirstDay);
    EatCalories(1e308, FirstDay);
    ExpectSameBits(*LoggedPeriod(All).Sums(), SumsOfTheStatement(All));
}
