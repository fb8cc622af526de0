#include "analysis/ui/ucBarChart.h"

#include "AnalysisTest.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucStrip.h"

#include <QAccessible>
#include <QPainter>
#include <QSignalSpy>

namespace {

const QDate First(2002, 4, 1);
const QDate Last(2002, 4, 30);
const QString Points(148, u'.');
const QString Mode = QStringLiteral("REPORTMODE");

class ucBarChartTest : public AnalysisTest {
protected:
    static ChartBar* Bar(const ucBarChart& chart, int row) {
        return Find<ChartBar>(&chart, QStringLiteral("imgBar%1").arg(row));
    }
    static ChartLabel* Name(const ucBarChart& chart, int row) {
        return Find<ChartLabel>(&chart, QStringLiteral("lbl%1").arg(row));
    }
    static ChartLabel* Value(const ucBarChart& chart, int row) {
        return Find<ChartLabel>(&chart, QStringLiteral("lblVal%1").arg(row));
    }
    QString Text(const ucBarChart& chart, int row) {
        const QString caption = Value(chart, row)->Caption();
        EXPECT_TRUE(caption.startsWith(Points)) << row;
        return caption.mid(Points.size());
    }
    QString Header(const ucBarChart& chart) { return Caption(chart, "ucHeader1"); }
    static void Update(ucBarChart& chart) { chart.updateBars(First, Last); }
    QVariant Profile(const char* column) {
        return Users(QStringLiteral("SELECT %1 FROM profiles WHERE UID=%2")
                         .arg(QLatin1String(column))
                         .arg(User::Current().UID));
    }
    static int ShownBars(const ucBarChart& chart) {
        int shown = 0;
        for (int row = 1; row <= 31; ++row)
            shown += !Bar(chart, row)->isHidden();
        return shown;
    }
    /// There must be a weight for an average.
    void WeighOnce() { Weigh(180, First); }
};

const char* const PercentOf180 = " Percent RDI (avg weight: 180 lbs)";

// ---- rows

TEST_F(ucBarChartTest, ShowsThe31RowsInTheirOrder) {
    ucBarChart chart;
    const QStringList names =
        QStringLiteral(
            "Calories|Total Fat|Saturated Fat|Polyunsaturated Fat|Monounsaturated Fat|"
            "Cholesterol|Sodium|Carbohydrates|Fiber|Protein|Ash|Calcium|Copper|Folate|"
            "Iron|Magnesium|Manganese|Niacin|Panto. Acid|Phosphorus|Potassium|Riboflavin|"
            "Thiamin|Selenium|Vit. A|Vit. B6|Vit. B12|Vit. C|Vit. E|Water|Zinc")
            .split(u'|');
    for (int row = 1; row <= 31; ++row)
        EXPECT_EQ(Name(chart, row)->Caption(), names[row - 1]);
    EXPECT_EQ(chart.findChild<QWidget*>(QStringLiteral("lbl32")), nullptr);
}

TEST_F(ucBarChartTest, EachRowReadsItsOwnFieldAndUnit) {
    const QStringList columns =
        QStringLiteral("Calories TotalFat SatFat PolyFat MonoFat Cholesterol Sodium carbs fiber "
                       "Protein Ash Calcium Copper Folate Iron Magnesium Manganese Niacin Panto "
                       "Phosphorus Potassium Riboflavin Thiamin Selenium VitaminA VitaminB6 "
                       "VitaminB12 VitaminC VitaminE Water Zinc")
            .split(u' ');
    const QStringList units =
        QStringLiteral("kcal g g g g mg mg g g g g mg mg mcg mg mg mg mg mg mg mg mg mg mg iu mg "
                       "mcg mg mg gm mg")
            .split(u' ');
    Amounts amounts;
    for (int row = 1; row <= 31; ++row)
        amounts[columns[row - 1]] = row;
    Eat(amounts, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    for (int row = 1; row <= 31; ++row)
        EXPECT_EQ(Text(chart, row), QStringLiteral("%1. %2").arg(row).arg(units[row - 1]));
}

TEST_F(ucBarChartTest, EachBarFollowsItsOwnTarget) {
    Amounts amounts;
    double part = 1;
    for (const Nutrient nutrient : PeriodOrder()) {
        amounts[QLatin1String(Info(nutrient).logColumn)] = 10 * part;
        User::Current().RDIs.Set(nutrient, 400 * part);
        part *= 2;
        if (part > 64)
            part = 1;
    }
    Eat(amounts, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    for (int row = 1; row <= 31; ++row) {
        EXPECT_EQ(Bar(chart, row)->Width(), 150) << row;
        EXPECT_EQ(Bar(chart, row)->width(), 10) << row;
    }
}

// ---- the period

TEST_F(ucBarChartTest, OneLoggedDayAmongThirtyIsTheAverage) {
    Eat({{QStringLiteral("Calories"), 1000}, {QStringLiteral("Iron"), 4}}, First.addDays(11));
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1,000 kcal"));
    EXPECT_EQ(Text(chart, 15), QStringLiteral("4. mg"));
    EXPECT_EQ(Bar(chart, 1)->Width(), 3000);
    EXPECT_EQ(Bar(chart, 15)->Width(), 3000);
}

TEST_F(ucBarChartTest, FoodsOfOneDayCountAsOneDay) {
    for (const char* meal : {"Breakfast", "Lunch", "Dinner", "Snacks", ""})
        Eat({{QStringLiteral("Calories"), 300}}, First, QLatin1String(meal));
    EatCalories(600, Last);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1,050 kcal"));
    EXPECT_EQ(chart.Sums().Calories(), 2100);
}

TEST_F(ucBarChartTest, BothEndsCountButNoOtherDayAndNoOtherUser) {
    EatCalories(500, First);
    EatCalories(700, Last);
    EatCalories(9000, First.addDays(-1));
    EatCalories(9000, Last.addDays(1));
    EatAs(User::Current().UID + 1, {{QStringLiteral("Calories"), 9000}}, First.addDays(1));
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("600 kcal"));
}

TEST_F(ucBarChartTest, DaysAreReadMonthFirst) {
    EatCalories(300, QDate(2002, 4, 3));
    EatCalories(900, QDate(2002, 3, 4));
    Weigh(150, QDate(2002, 4, 3));
    Weigh(250, QDate(2002, 3, 4));
    ucBarChart chart;
    chart.updateBars(QDate(2002, 4, 3), QDate(2002, 4, 3));
    EXPECT_EQ(Text(chart, 1), QStringLiteral("300 kcal"));
    EXPECT_EQ(chart.AverageWeight(), 150);
}

TEST_F(ucBarChartTest, PeriodsOfAnyTimeAndLengthAreRead) {
    for (const QDate day : {QDate(1970, 1, 1), QDate(1991, 12, 31), QDate(2106, 12, 31)}) {
        EatCalories(day.year(), day);
        Weigh(100, day);
        ucBarChart chart;
        chart.updateBars(day, day);
        EXPECT_EQ(chart.Sums().Calories(), day.year());
    }
    ucBarChart chart;
    chart.updateBars(QDate(1900, 1, 1), QDate(2200, 1, 1));
    EXPECT_EQ(chart.Sums().Calories(), 1970 + 1991 + 2106);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("2,022 kcal"));
}

TEST_F(ucBarChartTest, WholeNumberSumsAreRoundedHalfToEvenBeforeTheyAreAveraged) {
    Eat({{QStringLiteral("Calories"), 1}}, First);
    Eat({{QStringLiteral("Calories"), 1}}, Last);
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = 1.25, Sodium = 1.75, Iron = 1.25"));
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1. kcal")); // 2.5 is 2
    EXPECT_EQ(Text(chart, 7), QStringLiteral("2. mg"));   // 3.5 is 4
    EXPECT_EQ(Text(chart, 15), QStringLiteral("1.25 mg"));
    EXPECT_EQ(Bar(chart, 7)->Width(), 6000 * (2.0 / 2400));
}

TEST_F(ucBarChartTest, AnUnknownAmountCountsAsZero) {
    EatCalories(100, First);
    Users(QStringLiteral("UPDATE USER_FOODS SET Zinc = NULL"));
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 31), QStringLiteral("0 mg"));
    EXPECT_TRUE(Bar(chart, 31)->isHidden());
}

// ---- the average weight

TEST_F(ucBarChartTest, TheHeaderShowsTheAverageWeightRoundedHalfToEven) {
    EatCalories(100, First);
    ucBarChart chart;
    EXPECT_EQ(Header(chart), QStringLiteral(" Percent RDI (avg weight: 0 lbs)"));
    Weigh(180, First);
    Weigh(181, Last);
    Update(chart);
    EXPECT_EQ(Header(chart), QLatin1String(PercentOf180));
    Users(QStringLiteral("UPDATE USER_WEIGHTS SET Weight = Weight + 1"));
    Update(chart);
    EXPECT_EQ(Header(chart), QStringLiteral(" Percent RDI (avg weight: 182 lbs)"));
    EXPECT_EQ(chart.AverageWeight(), 182);
}

TEST_F(ucBarChartTest, WeightsOfZeroOutsideThePeriodAndOfOthersDoNotCount) {
    EatCalories(100, First);
    Weigh(150, First);
    Weigh(0, First.addDays(1));
    Weigh(-20, First.addDays(2));
    Weigh(300, First.addDays(-1));
    Weigh(300, Last.addDays(1));
    Users(
        QStringLiteral("INSERT INTO USER_WEIGHTS (UID,UDate,Weight) VALUES (99,'2002-04-05',300)"));
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(chart.AverageWeight(), 150);
}

TEST_F(ucBarChartTest, TargetsFollowTheAverageWeightAndAfterwardsThePresentOne) {
    App().AppInfo.AUTOUPDATERDI = true;
    User::Current().CurrentWeight = 170;
    RecalcTargets();
    const double present = User::Current().RDIs.Calories();
    EatCalories(1000, First);
    Weigh(200, First);
    ucBarChart chart;
    Update(chart);
    EXPECT_DOUBLE_EQ(Bar(chart, 1)->Width(), 6000 * (1000 / 3149.0));
    EXPECT_EQ(User::Current().CurrentWeight, 170);
    EXPECT_EQ(User::Current().RDIs.Calories(), present);
    EXPECT_NE(present, 3149);
    EXPECT_EQ(Profile("current_weight"), 170);
    EXPECT_EQ(Profile("Calories"), present);
}

TEST_F(ucBarChartTest, WithoutAutomaticTargetsTheProfileAndTheTargetsStay) {
    EatCalories(1000, First);
    Weigh(150, First);
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Bar(chart, 1)->Width(), 3000);
    EXPECT_EQ(User::Current().CurrentWeight, 200);
    EXPECT_EQ(User::Current().RDIs.Calories(), 2000);
    EXPECT_EQ(Profile("current_weight"), 200);
}

TEST_F(ucBarChartTest, WithoutFoodTheAverageStaysInTheUserAndItsRow) {
    App().AppInfo.AUTOUPDATERDI = true;
    User::Current().CurrentWeight = 170;
    RecalcTargets();
    Weigh(200, First);
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(User::Current().CurrentWeight, 200);
    EXPECT_EQ(User::Current().RDIs.Calories(), 3149);
    EXPECT_EQ(Profile("current_weight"), 200);
    EXPECT_EQ(Profile("Calories"), 3149);
    // The next run with food finds that average as the present weight and restores it.
    EatCalories(100, Last);
    Weigh(100, Last);
    Update(chart);
    EXPECT_EQ(chart.AverageWeight(), 150);
    EXPECT_EQ(User::Current().CurrentWeight, 200);
    EXPECT_EQ(Profile("current_weight"), 200);
}

TEST_F(ucBarChartTest, WithoutFoodAndAutomaticTargetsTheAverageStaysInMemoryAlone) {
    Weigh(150, First);
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(User::Current().CurrentWeight, 150);
    EXPECT_EQ(Profile("current_weight"), 200);
}

TEST_F(ucBarChartTest, WithoutFoodBarsVanishAndValuesStay) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    Users(QStringLiteral("DELETE FROM USER_FOODS"));
    Users(QStringLiteral("UPDATE USER_WEIGHTS SET Weight = 190"));
    Update(chart);
    for (int row = 1; row <= 31; ++row) {
        EXPECT_EQ(Bar(chart, row)->Width(), 0) << row;
        EXPECT_TRUE(Bar(chart, row)->isHidden()) << row;
    }
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1,000 kcal"));
    EXPECT_EQ(chart.Sums().Calories(), 1000);
    EXPECT_EQ(Header(chart), QStringLiteral(" Percent RDI (avg weight: 190 lbs)"));
}

TEST_F(ucBarChartTest, FoodOfUnknownCaloriesIsNoFood) {
    EatCalories(1000, First);
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = NULL"));
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(ShownBars(chart), 0);
}

TEST_F(ucBarChartTest, WithoutAnyWeightItFailsAndNothingHasChanged) {
    App().AppInfo.AUTOUPDATERDI = true;
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EatCalories(5000, Last);
    Users(QStringLiteral("UPDATE profiles SET current_weight = 123"));
    for (const char* change : {"UPDATE USER_WEIGHTS SET Weight = 0", "DELETE FROM USER_WEIGHTS"}) {
        Users(QLatin1String(change));
        const int bar = Bar(chart, 1)->width();
        EXPECT_EQ(FailureOf([&] { Update(chart); }), ErrorNumber::InvalidUseOfNull);
        EXPECT_EQ(User::Current().CurrentWeight, 200);
        EXPECT_EQ(Profile("current_weight"), 123);
        EXPECT_EQ(chart.AverageWeight(), 180);
        EXPECT_EQ(Header(chart), QLatin1String(PercentOf180));
        EXPECT_EQ(Bar(chart, 1)->width(), bar);
        EXPECT_EQ(Text(chart, 1), QStringLiteral("1,000 kcal"));
    }
}

TEST_F(ucBarChartTest, AnEndBeforeTheStartHasNoWeightEither) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    EXPECT_EQ(FailureOf([&] { chart.updateBars(Last, First); }), ErrorNumber::InvalidUseOfNull);
}

TEST_F(ucBarChartTest, AFailureAfterTheWeightLeavesTheUserWithTheAverage) {
    WeighOnce();
    ucBarChart chart;
    User::Current().CurrentWeight = 170;
    Users(QStringLiteral("DROP TABLE USER_FOODS"));
    EXPECT_THROW(Update(chart), RuntimeError);
    EXPECT_EQ(User::Current().CurrentWeight, 180);
}

TEST_F(ucBarChartTest, AWeightBeyondAWholeNumberIsNoWeight) {
    Weigh(3e9, First);
    ucBarChart chart;
    EXPECT_EQ(FailureOf([&] { Update(chart); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(User::Current().CurrentWeight, 200);
}

TEST_F(ucBarChartTest, ClearedBarsAreHiddenAndEmpty) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    ASSERT_EQ(ShownBars(chart), 1);
    chart.ClearBars();
    EXPECT_EQ(ShownBars(chart), 0);
    EXPECT_EQ(Bar(chart, 1)->Width(), 0);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1,000 kcal"));
}

// ---- widths

TEST_F(ucBarChartTest, OnePercentIsFourPixels) {
    double value = 2000;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 2000), 6000);
    value = 20;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 2000), 60);
    value = 1;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 3), 6000 * (1.0 / 3));
}

TEST_F(ucBarChartTest, TheCallersValueBecomesTheAverage) {
    double value = 900;
    EXPECT_EQ(ucBarChart::barWidth(3, value, 600), 3000);
    EXPECT_EQ(value, 300);
    EXPECT_EQ(ucBarChart::barWidth(3, value, 600), 1000);
    EXPECT_EQ(value, 100);
}

TEST_F(ucBarChartTest, AllBarsAbove133And5TenthsPercentHaveTheSameLength) {
    for (const double percent : {133.5, 133.6, 200.0, 1e12}) {
        double value = percent;
        EXPECT_EQ(ucBarChart::barWidth(1, value, 100), 8010) << percent;
    }
    double below = 133.4;
    EXPECT_DOUBLE_EQ(ucBarChart::barWidth(1, below, 100), 8004);
}

TEST_F(ucBarChartTest, TheLimitIsTestedInSinglePrecision) {
    double value = 8010.0001;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 6000), 6000 * (8010.0001 / 6000));
    value = 8010.001;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 6000), 8010);
}

TEST_F(ucBarChartTest, ATargetOfZeroCountsAsAThousandth) {
    double value = 1;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 0), 8010);
    value = 0.0005;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 0), 3000);
    value = 0;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 0), 0);
}

TEST_F(ucBarChartTest, NegativeIntakesHaveNoBar) {
    double value = -5;
    EXPECT_EQ(ucBarChart::barWidth(1, value, 10), 0);
    value = 5;
    EXPECT_EQ(ucBarChart::barWidth(1, value, -10), 0);
}

TEST_F(ucBarChartTest, BarsOf15TwipsOrLessAreHidden) {
    User::Current().RDIs.Set(Nutrient::Iron, 4000);
    User::Current().RDIs.Set(Nutrient::Zinc, 4000);
    Eat({{QStringLiteral("Calories"), 1000},
         {QStringLiteral("Iron"), 10},
         {QStringLiteral("Zinc"), 10.5}},
        First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Bar(chart, 15)->Width(), 15);
    EXPECT_TRUE(Bar(chart, 15)->isHidden());
    EXPECT_DOUBLE_EQ(Bar(chart, 31)->Width(), 15.75);
    EXPECT_FALSE(Bar(chart, 31)->isHidden());
}

// ---- numbers

TEST_F(ucBarChartTest, NumbersKeepThePointBelow100AndTheSeparatorAbove) {
    EatCalories(1, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    const auto text = [&](double value) { return chart.numFix(value); };
    EXPECT_EQ(text(0), QStringLiteral("0"));
    EXPECT_EQ(text(12), QStringLiteral("12."));
    EXPECT_EQ(text(0.456), QStringLiteral("0.46"));
    EXPECT_EQ(text(0.001), QStringLiteral("0."));
    EXPECT_EQ(text(1.5), QStringLiteral("1.5"));
    EXPECT_EQ(text(0.125), QStringLiteral("0.13"));
    EXPECT_EQ(text(99.994), QStringLiteral("99.99"));
    EXPECT_EQ(text(99.996), QStringLiteral("100."));
    EXPECT_EQ(text(100), QStringLiteral("100"));
    EXPECT_EQ(text(999.5), QStringLiteral("1,000"));
    EXPECT_EQ(text(1234567.5), QStringLiteral("1,234,568"));
    EXPECT_EQ(text(-1234.567), QStringLiteral("-1234.57"));
}

TEST_F(ucBarChartTest, NumFixMakesTheCallersValueTheAverageAndLeavesZeroAlone) {
    EatCalories(1, First);
    EatCalories(1, Last);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    double value = 300;
    EXPECT_EQ(chart.numFix(value), QStringLiteral("150"));
    EXPECT_EQ(value, 150);
    EXPECT_EQ(chart.numFix(value), QStringLiteral("75."));
    value = 0;
    EXPECT_EQ(chart.numFix(value), QStringLiteral("0"));
    EXPECT_EQ(value, 0);
}

TEST_F(ucBarChartTest, AnAverageJustBelow100MayRead100) {
    Eat({{QStringLiteral("Calories"), 100}, {QStringLiteral("Iron"), 99.996}}, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("100 kcal"));
    EXPECT_EQ(Text(chart, 15), QStringLiteral("100. mg"));
}

// ---- the two modes

TEST_F(ucBarChartTest, ToggleShowsBarsOrValues) {
    ucBarChart chart;
    chart.show();
    for (int round = 0; round < 2; ++round) {
        chart.Toggle(1);
        EXPECT_EQ(chart.Mode(), QStringLiteral("VALS"));
        EXPECT_EQ(Header(chart), QStringLiteral("             Average Nutrient Values"));
        EXPECT_TRUE(Find(&chart, QStringLiteral("picVals"))->isVisible());
        EXPECT_FALSE(Find(&chart, QStringLiteral("ucRDI1"))->isVisible());
        EXPECT_FALSE(Find(&chart, QStringLiteral("ucRDI5"))->isVisible());
        EXPECT_EQ(ShownBars(chart), 0);
        chart.Toggle(0);
        EXPECT_EQ(chart.Mode(), QStringLiteral("BARS"));
        EXPECT_EQ(Header(chart), QStringLiteral(" Percent RDI (avg weight: 0 lbs)"));
        EXPECT_FALSE(Find(&chart, QStringLiteral("picVals"))->isVisible());
        EXPECT_TRUE(Find(&chart, QStringLiteral("ucRDI1"))->isVisible());
        EXPECT_TRUE(Find(&chart, QStringLiteral("ucRDI5"))->isVisible());
        EXPECT_EQ(ShownBars(chart), 31);
    }
}

TEST_F(ucBarChartTest, OtherModesDoNothing) {
    ucBarChart chart;
    chart.Toggle(1);
    for (const int mode : {-1, 2, 3, 100}) {
        chart.Toggle(mode);
        EXPECT_EQ(chart.Mode(), QStringLiteral("VALS"));
        EXPECT_EQ(Header(chart), QStringLiteral("             Average Nutrient Values"));
    }
}

TEST_F(ucBarChartTest, SwitchingToBarsShowsNarrowOnesUntilTheNextRefresh) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    EXPECT_EQ(ShownBars(chart), 1);
    chart.Toggle(1);
    chart.Toggle(0);
    EXPECT_EQ(ShownBars(chart), 31);
    Update(chart);
    EXPECT_EQ(ShownBars(chart), 1);
}

TEST_F(ucBarChartTest, ARefreshInTheValuesViewShowsNoBarAndGivesTheHeaderTheWeight) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    chart.Toggle(1);
    Update(chart);
    EXPECT_EQ(ShownBars(chart), 0);
    EXPECT_EQ(Bar(chart, 1)->Width(), 3000);
    EXPECT_EQ(Text(chart, 1), QStringLiteral("1,000 kcal"));
    EXPECT_EQ(Header(chart), QLatin1String(PercentOf180));
    chart.Toggle(0);
    EXPECT_EQ(ShownBars(chart), 31);
    EXPECT_EQ(Header(chart), QLatin1String(PercentOf180));
}

TEST_F(ucBarChartTest, TheModeIsKeptFromOneChartToTheNext) {
    {
        ucBarChart chart;
        EXPECT_EQ(chart.Mode(), QStringLiteral("BARS"));
        chart.Toggle(1);
    }
    EXPECT_EQ(GetRegValue(Mode), QStringLiteral("VALS"));
    {
        ucBarChart chart;
        EXPECT_EQ(chart.Mode(), QStringLiteral("VALS"));
        chart.Toggle(0);
        EXPECT_EQ(GetRegValue(Mode), QStringLiteral("VALS"));
    }
    EXPECT_EQ(GetRegValue(Mode), QStringLiteral("BARS"));
}

TEST_F(ucBarChartTest, AnySettingButExactlyVALSMeansBars) {
    for (const char* setting : {"vals", "VALS ", "BARS", "1", ""}) {
        SetRegValue(Mode, QLatin1String(setting));
        {
            ucBarChart chart;
            EXPECT_EQ(chart.Mode(), QStringLiteral("BARS")) << setting;
        }
        EXPECT_EQ(GetRegValue(Mode), QStringLiteral("BARS")) << setting;
    }
}

// ---- what is to be seen

TEST_F(ucBarChartTest, RowsStandAtTheirPlacesInTwips) {
    ucBarChart chart;
    chart.show();
    for (const int height : {476, 490, 600}) {
        chart.resize(738, height);
        const int h = Name(chart, 1)->height() * 15;
        const int valuesTop = Find(&chart, QStringLiteral("picVals"))->y() * 15;
        for (int row = 1; row <= 31; ++row) {
            const int top = (h - 45) * row + 60;
            EXPECT_EQ(Name(chart, row)->y() * 15, top) << row;
            EXPECT_EQ(Bar(chart, row)->y() * 15, top + 45) << row;
            EXPECT_EQ(Bar(chart, row)->x() * 15, 2445) << row;
            EXPECT_EQ(Value(chart, row)->y() * 15, top - valuesTop + 15) << row;
            EXPECT_EQ(Value(chart, row)->x(), 0) << row;
            EXPECT_EQ(Value(chart, row)->width() * 15, 7815) << row;
        }
        EXPECT_LE(Name(chart, 31)->geometry().bottom(), height - 3);
    }
}

TEST_F(ucBarChartTest, TheHeaderDoesNotCoverTheFirstBar) {
    ucBarChart chart;
    chart.show();
    for (const int height : {476, 490, 600}) {
        chart.resize(738, height);
        EXPECT_LT(Find(&chart, QStringLiteral("ucHeader1"))->geometry().bottom() + 1,
                  Bar(chart, 1)->y());
    }
}

TEST_F(ucBarChartTest, TheScaleReadsFrom25To125Percent) {
    ucBarChart chart;
    const std::array captions{"25%", "50%", "75%", "100%", "125%"};
    const std::array lefts{3645, 5160, 6630, 8160, 9630};
    for (int i = 0; i < 5; ++i) {
        const auto* strip = Find<ucStrip>(&chart, QStringLiteral("ucRDI%1").arg(i + 1));
        EXPECT_EQ(strip->Caption(), QLatin1String(captions[size_t(i)]));
        EXPECT_EQ(strip->x() * 15, lefts[size_t(i)]);
    }
}

TEST_F(ucBarChartTest, EveryTextHasRoom) {
    Eat({{QStringLiteral("Calories"), 99999}, {QStringLiteral("VitaminA"), 999999}}, First);
    Weigh(1234, First);
    ucBarChart chart;
    Update(chart);
    for (int row = 1; row <= 31; ++row) {
        EXPECT_LE(Name(chart, row)->sizeHint().width(), Name(chart, row)->width()) << row;
        EXPECT_LE(Value(chart, row)->sizeHint().width(), Value(chart, row)->width()) << row;
    }
    const auto* header = Find<ucHeader>(&chart, QStringLiteral("ucHeader1"));
    EXPECT_LE(header->sizeHint().width(), Find(&chart, QStringLiteral("ucRDI1"))->x());
}

TEST_F(ucBarChartTest, TheGridHasALineEveryFivePercentAndADarkOneEvery25) {
    ucBarChart chart;
    chart.show();
    chart.ClearBars();
    const QImage shown = Grab(&chart);
    const QRgb paper = TheStyle().paper.rgb();
    for (const int y : {470, 473}) // below the names of the rows
        for (int x = 1; x < 737; ++x) {
            const int n = x * 15 - 2430;
            const bool line = n >= 0 && n % 300 == 0 && x * 15 <= 11000;
            EXPECT_EQ(shown.pixel(x, y), !line           ? paper
                                         : n % 1500 == 0 ? qRgb(111, 111, 111)
                                                         : qRgb(222, 222, 222))
                << x << "," << y;
        }
    EXPECT_EQ(shown.pixel(162, 474), paper);
    for (const QPoint at : {QPoint(0, 0), QPoint(162, 0), QPoint(737, 0), QPoint(0, 475),
                            QPoint(162, 475), QPoint(737, 475), QPoint(0, 200), QPoint(737, 200)})
        EXPECT_EQ(shown.pixel(at), qRgb(180, 105, 12)) << at.x() << "," << at.y();
}

TEST_F(ucBarChartTest, BarsAreDrawnToThePixel) {
    Eat({{QStringLiteral("Calories"), 500}, {QStringLiteral("Iron"), 800}}, First);
    WeighOnce();
    ucBarChart chart;
    chart.show();
    Update(chart);
    const QImage shown = Grab(&chart);
    static constexpr QRgb rows[8] = {qRgb(120, 124, 133), qRgb(167, 180, 223), qRgb(156, 171, 234),
                                     qRgb(135, 155, 235), qRgb(91, 112, 192),  qRgb(86, 105, 181),
                                     qRgb(69, 86, 150),   qRgb(94, 96, 104)};
    const auto check = [&](int row, int pixels) {
        const int top = Bar(chart, row)->y();
        for (int y = 0; y < 8; ++y) {
            EXPECT_EQ(shown.pixel(163, top + y), rows[y]) << row;
            EXPECT_EQ(shown.pixel(163 + pixels - 1, top + y), rows[y]) << row;
            EXPECT_NE(shown.pixel(163 + pixels, top + y), rows[y]) << row;
        }
    };
    check(1, 100);
    check(15, 534);
}

TEST_F(ucBarChartTest, TheValuesCoverTheGrid) {
    ucBarChart chart;
    chart.show();
    chart.Toggle(1);
    const QImage shown = Grab(&chart);
    for (int x = 162; x < 737; ++x)
        EXPECT_EQ(shown.pixel(x, 470), TheStyle().paper.rgb()) << x;
}

// ---- the pointer

TEST_F(ucBarChartTest, MovesOverTheBackgroundTheNamesAndTheHeaderAreRaised) {
    ucBarChart chart;
    chart.show();
    QSignalSpy moves(&chart, &ucBarChart::MouseMove);
    Hover(&chart, QPoint(300, 470));
    EXPECT_EQ(moves.count(), 1);
    Hover(Name(chart, 1));
    Hover(Name(chart, 31));
    EXPECT_EQ(moves.count(), 3);
    Hover(Find(&chart, QStringLiteral("ucHeader1")));
    EXPECT_EQ(moves.count(), 4);
}

TEST_F(ucBarChartTest, MovesOverBarsValuesAndTheScaleAreNotRaised) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    chart.show();
    Update(chart);
    QSignalSpy moves(&chart, &ucBarChart::MouseMove);
    const QImage before = Grab(&chart);
    Hover(Bar(chart, 1));
    Hover(Find(&chart, QStringLiteral("ucRDI3")));
    EXPECT_EQ(Grab(&chart), before);
    chart.Toggle(1);
    Hover(Value(chart, 1));
    Hover(Find(&chart, QStringLiteral("picVals")), QPoint(550, 400));
    EXPECT_EQ(moves.count(), 0);
}

// ---- assistive programs and paper

TEST_F(ucBarChartTest, AssistiveProgramsReadTheFigures) {
    Eat({{QStringLiteral("Calories"), 1000}, {QStringLiteral("Iron"), 12}}, First);
    User::Current().RDIs.Set(Nutrient::Zinc, 0);
    WeighOnce();
    ucBarChart chart;
    const auto value = [](QWidget* part) {
        return QAccessible::queryAccessibleInterface(part)->text(QAccessible::Value);
    };
    EXPECT_EQ(value(&chart), QStringLiteral("No data to chart"));
    Update(chart);
    EXPECT_EQ(value(Name(chart, 1)), QStringLiteral("1000 kcal, 50%"));
    EXPECT_EQ(value(Bar(chart, 15)), QStringLiteral("150%"));
    EXPECT_EQ(value(Name(chart, 31)), QStringLiteral("0 mg"));
    EXPECT_TRUE(value(&chart).startsWith(QStringLiteral("Calories: 1000 kcal, 50%; Total Fat: 0")))
        << value(&chart).toStdString();
    EXPECT_EQ(value(&chart).count(u';'), 30);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart)->role(), QAccessible::Chart);
    chart.ClearBars();
    EXPECT_EQ(value(&chart), QStringLiteral("No data to chart"));
    EXPECT_EQ(value(Name(chart, 1)), QString());
}

TEST_F(ucBarChartTest, ThePrintedPictureEqualsTheScreen) {
    EatCalories(1000, First);
    WeighOnce();
    ucBarChart chart;
    Update(chart);
    chart.show();
    const QImage screen = Grab(&chart);
    QImage same(chart.size(), QImage::Format_RGB32);
    QPainter onSame(&same);
    chart.PaintChart(onSame, same.rect());
    onSame.end();
    EXPECT_EQ(same, screen);

    QImage paper(3000, 2000, QImage::Format_RGB32);
    paper.fill(Qt::green);
    QPainter onPaper(&paper);
    chart.PaintChart(onPaper, QRect(10, 20, 738 * 4, 480 * 4));
    onPaper.end();
    EXPECT_EQ(paper.pixel(10 + 4, 20 + 8 + 4 * 300), TheStyle().paper.rgb());
    EXPECT_EQ(paper.pixel(9, 1000), qRgb(0, 255, 0));
    EXPECT_EQ(paper.pixel(1000, 26), qRgb(0, 255, 0)); // the rest of the height is above and below
    const int top = 20 + 8 + Bar(chart, 1)->y() * 4;
    EXPECT_EQ(paper.pixel(10 + (163 + 199) * 4 + 3, top + 2), qRgb(120, 124, 133));
    EXPECT_NE(paper.pixel(10 + (163 + 200) * 4 + 1, top + 2), qRgb(120, 124, 133));
}

} // namespace
