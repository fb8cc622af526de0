#include "analysis/DayFigures.h"
#include "analysis/PeriodFigures.h"
#include "model/Nuts.h"

#include <gtest/gtest.h>

namespace {

Nuts With(std::initializer_list<std::pair<Nutrient, double>> values) {
    Nuts nuts;
    for (const auto& [nutrient, value] : values)
        nuts.Set(nutrient, value);
    return nuts;
}

const NutrientFigure& RowOf(const std::vector<NutrientFigure>& rows, Nutrient nutrient) {
    return *std::find_if(rows.begin(), rows.end(), [nutrient](const NutrientFigure& row) {
        return row.nutrient == nutrient;
    });
}

using enum Nutrient;
const Nuts Targets = With({{Calories, 2000}, {Iron, 8}, {Water, 1792}});

} // namespace

// ---- one figure

TEST(NutrientFigureTest, PercentIsOfTheTarget) {
    const NutrientFigure iron{Iron, QLatin1String("mg"), 12, 8};
    EXPECT_EQ(iron.Part(), 1.5);
    EXPECT_EQ(iron.Percent(), "150%");
    EXPECT_EQ(iron.Spoken(), "12 mg, 150%");
    EXPECT_EQ(iron.Caption(), "Iron");
}

TEST(NutrientFigureTest, WithoutATargetThereIsNoPercentAndTheBarTakesATinyOne) {
    const NutrientFigure iron{Iron, QLatin1String("mg"), 0.5, 0};
    EXPECT_EQ(iron.Percent(), QString());
    EXPECT_EQ(iron.Spoken(), "0.5 mg");
    EXPECT_EQ(iron.Part(), 500);
}

// ---- a day

TEST(DayFiguresTest, RowsFollowTheChartWithTheirUnitsAndTargets) {
    const DayFigures day(With({{Calories, 500}, {Iron, 12.345}}), Targets);
    ASSERT_EQ(day.Rows().size(), ChartOrder().size());
    for (size_t i = 0; i < day.Rows().size(); ++i)
        EXPECT_EQ(day.Rows()[i].nutrient, ChartOrder()[i]);
    EXPECT_EQ(day.Rows()[0], (NutrientFigure{Calories, QLatin1String("kcal"), 500, 2000}));
    EXPECT_EQ(DayFigures::Text(RowOf(day.Rows(), Iron)), "12.35 mg");
    EXPECT_TRUE(day.HasData());
}

TEST(DayFiguresTest, LessThanOneKilocalorieIsADayWithoutDataWhateverElseWasEaten) {
    const DayFigures day(With({{Calories, 0}, {Iron, 5}}), Targets);
    EXPECT_FALSE(day.HasData());
    EXPECT_EQ(RowOf(day.Rows(), Iron).value, 0);
    EXPECT_EQ(RowOf(day.Rows(), Iron).target, 8);
    EXPECT_EQ(day.Energy(), EnergyShares::NoData());
}

TEST(DayFiguresTest, AnEmptyDayKeepsTheTargetsOfTheOneBefore) {
    const DayFigures day(With({{Calories, 500}}), Targets);
    EXPECT_EQ(day.WithoutData(), DayFigures(Nuts(), Targets));
    EXPECT_EQ(DayFigures().WithoutData(), DayFigures());
}

TEST(DayFiguresTest, TheEnergyIsThatOfTheSums) {
    const Nuts sums = With({{Calories, 900}, {TotalFat, 50}, {Protein, 50}});
    EXPECT_EQ(DayFigures(sums, Targets).Energy(), EnergyShares::Of(sums));
}

// ---- a period

TEST(PeriodFiguresTest, RowsAreAveragesOverTheDays) {
    const PeriodFigures period(With({{Calories, 3000}, {Iron, 16}, {Water, 300}}), 3, Targets);
    ASSERT_EQ(period.Rows().size(), PeriodOrder().size());
    for (size_t i = 0; i < period.Rows().size(); ++i)
        EXPECT_EQ(period.Rows()[i].nutrient, PeriodOrder()[i]);
    EXPECT_EQ(period.Rows()[0], (NutrientFigure{Calories, QLatin1String("kcal"), 1000, 2000}));
    EXPECT_EQ(PeriodFigures::Text(period.Rows()[0]), "1,000 kcal");
    EXPECT_EQ(PeriodFigures::Text(RowOf(period.Rows(), Iron)), "5.33 mg");
    EXPECT_EQ(PeriodFigures::Text(RowOf(period.Rows(), Water)), "100 gm");
}

TEST(PeriodFiguresTest, NumbersKeepThePointBelow100AndTheSeparatorAbove) {
    EXPECT_EQ(PeriodFigures::numFix(0), "0");
    EXPECT_EQ(PeriodFigures::numFix(12), "12.");
    EXPECT_EQ(PeriodFigures::numFix(99.996), "100.");
    EXPECT_EQ(PeriodFigures::numFix(100), "100");
    EXPECT_EQ(PeriodFigures::numFix(1234567.5), "1,234,568");
}

TEST(PeriodFiguresTest, TheSummaryNamesEachRow) {
    const PeriodFigures period(With({{Calories, 1000}}), 1, Targets);
    EXPECT_TRUE(period.Summary().startsWith("Calories: 1000 kcal, 50%; Total Fat: 0 g; "));
    EXPECT_EQ(period.Summary().count(u';'), 30);
    EXPECT_EQ(PeriodFigures().Summary(), "No data to chart");
}
