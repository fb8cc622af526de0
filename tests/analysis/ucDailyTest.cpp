#include "analysis/ui/ucDaily.h"

#include "AnalysisTest.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/PiePicture.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "support/Failure.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucStrip.h"

#include <QAccessible>
#include <QLocale>
#include <QMap>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

const QDate Day(2002, 4, 3);
const QString Leader = QStringLiteral(".......................");
const QString EmptyValue = QStringLiteral("..............................0");

class ucDailyTest : public AnalysisTest {
protected:
    using AnalysisTest::Eat;
    void Eat(const Amounts& amounts) { Eat(amounts, Day); }

    ChartBar* Bar(const ucDaily& panel, int row) {
        return Find<ChartBar>(&panel, QStringLiteral("imgBar%1").arg(row));
    }
    ChartLabel* Name(const ucDaily& panel, int row) {
        return Find<ChartLabel>(&panel, QStringLiteral("lbl%1").arg(row));
    }
    ChartLabel* Value(const ucDaily& panel, int row) {
        return Find<ChartLabel>(&panel, QStringLiteral("lblVal%1").arg(row));
    }
    int Widest(const ucDaily& panel) { return panel.width() * 15 - 30 - 60; }
    bool IsShown(const ucDaily& panel, const char* name) {
        return Find(&panel, QString::fromLatin1(name))->isVisible();
    }
    void ExpectNoData(const ucDaily& panel) {
        for (int row = 1; row <= 28; ++row) {
            EXPECT_EQ(Bar(panel, row)->Width(), 0) << row;
            EXPECT_TRUE(Bar(panel, row)->isHidden()) << row;
            EXPECT_EQ(Value(panel, row)->Caption(), EmptyValue) << row;
        }
        EXPECT_EQ(PieText(panel), QStringLiteral("No data to chart"));
        EXPECT_EQ(PieCaptions(panel),
                  QStringList({QStringLiteral("Total Fat --"), QStringLiteral("Protein --"),
                               QStringLiteral("Carbs. --")}));
    }
};

// ---- the day's sums

TEST_F(ucDailyTest, ShowsThe28RowsInTheirOrder) {
    ucDaily panel;
    const QStringList names =
        QStringLiteral("Calories|Total Fat|Saturated Fat|Polyunsaturated Fat|"
                       "Monounsaturated Fat|Cholesterol|Sodium|Carbohydrates|Fiber|"
                       "Protein|Calcium|Copper|Folate|Iron|Magnesium|Manganese|Niacin|"
                       "Phosphorus|Potassium|Riboflavin|Thiamin|Selenium|Vit. A|"
                       "Vit. B6|Vit. B12|Vit. C|Vit. E|Zinc")
            .split(u'|');
    for (int row = 1; row <= 28; ++row)
        EXPECT_EQ(Name(panel, row)->Caption(), names[row - 1]);
    EXPECT_EQ(panel.findChild<QWidget*>(QStringLiteral("lbl29")), nullptr);
}

TEST_F(ucDailyTest, EachRowReadsItsOwnFieldAndUnit) {
    Amounts amounts;
    double amount = 1;
    for (const Nutrient nutrient : ChartOrder())
        amounts[QLatin1String(Info(nutrient).logColumn)] = amount++;
    Eat(amounts);
    ucDaily panel;
    panel.setDate(Day);
    const QStringList units = QStringLiteral("kcal g g g g mg mg g g g mg mg mcg mg mg mg mg mg mg "
                                             "mg mg mg iu mg mcg mg mg mg")
                                  .split(u' ');
    for (int row = 1; row <= 28; ++row)
        EXPECT_EQ(Value(panel, row)->Caption(),
                  Leader + QString::number(row) + u' ' + units[row - 1]);
}

TEST_F(ucDailyTest, AllMealsOfTheDayCountAlikeAndNothingElse) {
    for (const char* meal : {"Breakfast", "Lunch", "Dinner", "Snacks", ""})
        Eat({{QStringLiteral("Calories"), 100}}, Day, QLatin1String(meal));
    Eat({{QStringLiteral("Calories"), 5000}}, Day.addDays(1));
    Eat({{QStringLiteral("Calories"), 5000}}, Day.addDays(-1));
    EatAs(User::Current().UID + 1, {{QStringLiteral("Calories"), 5000}}, Day);
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("500 kcal"));
}

TEST_F(ucDailyTest, MonthAndDayAreNotSwapped) {
    Eat({{QStringLiteral("Calories"), 300}}, QDate(2002, 3, 4));
    ucDaily panel;
    panel.setDate(QDate(2002, 4, 3));
    ExpectNoData(panel);
    panel.setDate(QDate(2002, 3, 4));
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("300 kcal"));
}

TEST_F(ucDailyTest, DaysOf1970AndOf2106AreFound) {
    Eat({{QStringLiteral("Calories"), 70}}, QDate(1970, 1, 1));
    Eat({{QStringLiteral("Calories"), 2106}}, QDate(2106, 12, 31));
    ucDaily panel;
    panel.setDate(QDate(1970, 1, 1));
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("70 kcal"));
    panel.setDate(QDate(2106, 12, 31));
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("2106 kcal"));
}

TEST_F(ucDailyTest, WholeNumberFieldsShowTheSumRoundedHalfToEven) {
    Eat({{QStringLiteral("Calories"), 1}, {QStringLiteral("Iron"), 1.25}});
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = 2.5, Sodium = 3.5, Iron = 2.5"));
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("2 kcal"));
    EXPECT_EQ(Value(panel, 7)->Caption(), Leader + QStringLiteral("4 mg"));
    EXPECT_EQ(Value(panel, 14)->Caption(), Leader + QStringLiteral("2.5 mg"));
    EXPECT_EQ(Bar(panel, 1)->Width(), 1500 * (2.0 / 2000));
}

TEST_F(ucDailyTest, FieldsWithoutARowAreSummedToo) {
    Eat({{QStringLiteral("Calories"), 1}, {QStringLiteral("Water"), 12.5}});
    Eat({{QStringLiteral("Water"), 1}, {QStringLiteral("Panto"), 2}, {QStringLiteral("Ash"), 3}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(panel.Sums()[Nutrient::Water], 13.5);
    EXPECT_EQ(panel.Sums()[Nutrient::Panto], 2);
    EXPECT_EQ(panel.Sums()[Nutrient::Ash], 3);
}

TEST_F(ucDailyTest, AFieldThatIsNullInEveryRowCountsAsZero) {
    Eat({{QStringLiteral("Calories"), 100}});
    Users(QStringLiteral("UPDATE USER_FOODS SET Zinc = NULL, VitaminA = NULL"));
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Value(panel, 28)->Caption(), Leader + QStringLiteral("0 mg"));
    EXPECT_EQ(Value(panel, 23)->Caption(), Leader + QStringLiteral("0 iu"));
}

TEST_F(ucDailyTest, ANewSumFollowsTheLogOnUpdate) {
    ucDaily panel;
    panel.setDate(Day);
    Eat({{QStringLiteral("Calories"), 100}});
    ExpectNoData(panel);
    panel.updateCharts();
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("100 kcal"));
    Users(QStringLiteral("DELETE FROM USER_FOODS"));
    panel.updateCharts();
    ExpectNoData(panel);
}

TEST_F(ucDailyTest, AnEmptyDayKeepsTheEarlierSums) {
    Eat({{QStringLiteral("Calories"), 700}});
    ucDaily panel;
    panel.setDate(Day);
    panel.setDate(Day.addDays(1));
    ExpectNoData(panel);
    EXPECT_EQ(panel.Sums().Calories(), 700);
}

TEST_F(ucDailyTest, ADayWithoutCaloriesLooksEmptyWhateverElseWasEaten) {
    Eat({{QStringLiteral("Protein"), 50}, {QStringLiteral("Zinc"), 5}});
    ucDaily panel;
    panel.setDate(Day);
    ExpectNoData(panel);
    EXPECT_EQ(panel.Sums().Protein(), 50);
}

TEST_F(ucDailyTest, ADayWhoseCaloriesRoundToZeroOrLessLooksEmpty) {
    Eat({{QStringLiteral("Protein"), 50}});
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = 0.5"));
    ucDaily panel;
    panel.setDate(Day);
    ExpectNoData(panel);
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = -40"));
    panel.updateCharts();
    ExpectNoData(panel);
}

TEST_F(ucDailyTest, ASumBeyondAWholeNumberShowsTheGreatestWholeNumber) {
    Eat({{QStringLiteral("Calories"), 100}});
    ucDaily panel;
    panel.setDate(Day);
    Eat({{QStringLiteral("Calories"), 2147483647}});
    panel.updateCharts();
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("2147483647 kcal"));
}

TEST_F(ucDailyTest, AFailingQueryIsNotCaught) {
    ucDaily panel;
    Users(QStringLiteral("DROP TABLE USER_FOODS"));
    EXPECT_THROW(panel.setDate(Day), RuntimeError);
}

TEST_F(ucDailyTest, BeforeTheProgramHasStartedNothingIsQueried) {
    CloseDatabases();
    App().AppStarted = false;
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    EXPECT_EQ(panel.Date(), Day);
    EXPECT_EQ(Bar(panel, 1)->Width(), 0);
    EXPECT_FALSE(Bar(panel, 1)->isHidden());
}

TEST_F(ucDailyTest, StartsOnToday) {
    Clock::SetToday(QDate(2008, 2, 29));
    Eat({{QStringLiteral("Calories"), 29}}, QDate(2008, 2, 29));
    ucDaily panel;
    EXPECT_EQ(panel.Date(), QDate(2008, 2, 29));
    panel.updateCharts();
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("29 kcal"));
}

TEST_F(ucDailyTest, IsBroughtUpToDateEachTimeItIsShown) {
    ucDaily panel;
    panel.setDate(Day);
    Eat({{QStringLiteral("Calories"), 100}});
    panel.show();
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("100 kcal"));
    panel.hide();
    Eat({{QStringLiteral("Calories"), 100}});
    panel.show();
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("200 kcal"));
}

// ---- numbers

TEST_F(ucDailyTest, NumFixKeepsTwoDecimalsBelow100AndNoneFromThere) {
    EXPECT_EQ(ucDaily::numFix(0), 0);
    EXPECT_EQ(ucDaily::numFix(12), 12);
    EXPECT_EQ(ucDaily::numFix(.456), 0.46);
    EXPECT_EQ(ucDaily::numFix(99.994), 99.99);
    EXPECT_EQ(ucDaily::numFix(99.996), 100);
    EXPECT_EQ(ucDaily::numFix(100), 100);
    EXPECT_EQ(ucDaily::numFix(100.4), 100);
    EXPECT_EQ(ucDaily::numFix(1234.5), 1235);
    EXPECT_EQ(ucDaily::numFix(1234567), 1234567);
    EXPECT_EQ(ucDaily::numFix(-1234.567), -1234.57);
}

TEST_F(ucDailyTest, NumFixGivesNoNegativeZero) {
    EXPECT_EQ(ucDaily::numFix(0.001), 0);
    EXPECT_FALSE(std::signbit(ucDaily::numFix(-0.001)));
}

TEST_F(ucDailyTest, NumFixReadsBackWhatTheLocaleWrote) {
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(ucDaily::numFix(0.456), 0.46);
    EXPECT_EQ(ucDaily::numFix(1234567.8), 1234568);
    QLocale::setDefault(QLocale(QLocale::Hindi, QLocale::India));
    EXPECT_EQ(ucDaily::numFix(1234567.8), 1234568);
    QLocale::setDefault(QLocale::c());
}

TEST_F(ucDailyTest, ValueTextsHaveNoThousandsSeparator) {
    Eat({{QStringLiteral("Calories"), 12345}, {QStringLiteral("Iron"), 1.005e6}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Value(panel, 1)->Caption(), Leader + QStringLiteral("12345 kcal"));
    EXPECT_EQ(Value(panel, 14)->Caption(), Leader + QStringLiteral("1005000 mg"));
}

TEST_F(ucDailyTest, EachNameHasRoomForItsText) {
    ucDaily panel;
    for (int row = 1; row <= 28; ++row)
        EXPECT_LE(Name(panel, row)->sizeHint().width(), Name(panel, row)->width()) << row;
}

// ---- bars

TEST_F(ucDailyTest, OnePercentOfTheTargetIsOnePixel) {
    ucDaily panel;
    EXPECT_EQ(panel.barWidth(2000, 2000), 1500);
    EXPECT_EQ(panel.barWidth(500, 2000), 375);
    EXPECT_EQ(panel.barWidth(1, 3), 1500 * (1.0 / 3));
    EXPECT_EQ(panel.barWidth(0, 2000), 0);
}

TEST_F(ucDailyTest, ABarOfTwiceTheTargetFits) {
    Eat({{QStringLiteral("Calories"), 4000}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Bar(panel, 1)->Width(), 3000);
    EXPECT_LT(Bar(panel, 1)->geometry().right(), Find(&panel, "picRDIs")->width());
}

TEST_F(ucDailyTest, ABarStopsAtThePanelsRightEdge) {
    ucDaily panel;
    const double widest = Widest(panel);
    EXPECT_EQ(panel.barWidth(widest, 1500), widest);
    EXPECT_EQ(panel.barWidth(widest + 1, 1500), widest);
    EXPECT_EQ(panel.barWidth(1e300, 1), widest);
    Eat({{QStringLiteral("Calories"), 100000}});
    panel.setDate(Day);
    panel.show();
    EXPECT_EQ(Bar(panel, 1)->Width(), widest);
    const int y = Bar(panel, 1)->mapTo(&panel, QPoint(0, 3)).y();
    const QImage shown = Grab(&panel);
    EXPECT_EQ(shown.pixel(panel.width() - 2, y), TheStyle().barNormal[3].rgb());
    EXPECT_EQ(shown.pixel(panel.width() - 1, y), TheStyle().frame.rgb());
}

TEST_F(ucDailyTest, WithoutATargetAnyIntakeDrawsTheFullLength) {
    ucDaily panel;
    EXPECT_EQ(panel.barWidth(0.5, 0), Widest(panel));
    EXPECT_EQ(panel.barWidth(0.001, 0), 1500);
    EXPECT_EQ(panel.barWidth(0, 0), 0);
}

TEST_F(ucDailyTest, ANegativeIntakeHasNoBar) {
    ucDaily panel;
    EXPECT_EQ(panel.barWidth(-5, 10), 0);
}

TEST_F(ucDailyTest, BarsOf15TwipsOrLessAreHidden) {
    User::Current().RDIs.Set(Nutrient::Iron, 1000);
    User::Current().RDIs.Set(Nutrient::Zinc, 1000);
    Eat({{QStringLiteral("Calories"), 1000},
         {QStringLiteral("Iron"), 10},
         {QStringLiteral("Zinc"), 10.5}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Bar(panel, 14)->Width(), 15);
    EXPECT_TRUE(Bar(panel, 14)->isHidden());
    EXPECT_DOUBLE_EQ(Bar(panel, 28)->Width(), 15.75);
    EXPECT_FALSE(Bar(panel, 28)->isHidden());
    EXPECT_EQ(Value(panel, 14)->Caption(), Leader + QStringLiteral("10 mg"));
}

TEST_F(ucDailyTest, BarsFollowTheTargetsOfTheUser) {
    Eat({{QStringLiteral("Calories"), 1000}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Bar(panel, 1)->Width(), 750);
    User::Current().RDIs.Set(Nutrient::Calories, 1000);
    panel.updateCharts();
    EXPECT_EQ(Bar(panel, 1)->Width(), 1500);
}

TEST_F(ucDailyTest, LimitsOfSodiumAndCholesterolDoNotMatter) {
    Eat({{QStringLiteral("Calories"), 1}, {QStringLiteral("Sodium"), 2400}});
    User::Current().FlagSodium = true;
    User::Current().sodiumMAX = 100;
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(Bar(panel, 7)->Width(), 1500);
    EXPECT_FALSE(Bar(panel, 7)->Hilited());
}

TEST_F(ucDailyTest, ABarIsItsPictureStretched) {
    static constexpr QRgb normal[8] = {
        qRgb(120, 124, 133), qRgb(167, 180, 223), qRgb(156, 171, 234), qRgb(135, 155, 235),
        qRgb(91, 112, 192),  qRgb(86, 105, 181),  qRgb(69, 86, 150),   qRgb(94, 96, 104)};
    static constexpr QRgb lit[8] = {qRgb(124, 128, 137), qRgb(230, 195, 175), qRgb(241, 197, 164),
                                    qRgb(239, 185, 141), qRgb(192, 130, 91),  qRgb(180, 125, 85),
                                    qRgb(149, 103, 67),  qRgb(93, 96, 103)};
    Eat({{QStringLiteral("Calories"), 1000}});
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    ChartBar* bar = Bar(panel, 1);
    EXPECT_EQ(bar->size(), QSize(50, 8));
    const QImage shown = Grab(bar);
    Hover(bar);
    const QImage hovered = Grab(bar);
    for (int x : {0, 25, 49})
        for (int y = 0; y < 8; ++y) {
            EXPECT_EQ(shown.pixel(x, y), normal[y]) << x << "," << y;
            EXPECT_EQ(hovered.pixel(x, y), lit[y]) << x << "," << y;
        }
}

TEST_F(ucDailyTest, BarsAndValuesStandAtTheirLabels) {
    ucDaily panel;
    for (int row = 1; row <= 28; ++row) {
        const QPoint label = Name(panel, row)->mapTo(&panel, QPoint());
        EXPECT_EQ(Bar(panel, row)->mapTo(&panel, QPoint()).y(), label.y() + 3);
        EXPECT_EQ(Value(panel, row)->mapTo(&panel, QPoint()).y(), label.y() + 1);
        EXPECT_EQ(Bar(panel, row)->x(), 4);
        EXPECT_EQ(Value(panel, row)->x(), 0);
    }
}

TEST_F(ucDailyTest, TheGridHasALineEveryTenPercentAndADarkOneEveryFifty) {
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    QWidget* view = Find(&panel, QStringLiteral("picRDIs"));
    const QImage shown = Grab(view);
    const QRgb paper = TheStyle().paper.rgb();
    for (int y : {0, 100, view->height() - 3})
        for (int x = 0; x < view->width(); ++x) {
            const int twips = x * 15 - 60;
            const QRgb line = twips < 0 || twips % 150 != 0 ? paper
                              : twips % 750 == 0            ? qRgb(111, 111, 111)
                                                            : qRgb(222, 222, 222);
            EXPECT_EQ(shown.pixel(x, y), line) << x << "," << y;
        }
    EXPECT_EQ(shown.pixel(4, view->height() - 2), paper);
    EXPECT_EQ(shown.pixel(4, view->height() - 1), paper);
}

TEST_F(ucDailyTest, TheScaleStandsOverItsLines) {
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    EXPECT_EQ(Caption(panel, "lblPercents"), QStringLiteral("0%        50%     100%"));
    const QWidget* scale = Find(&panel, QStringLiteral("lblPercents"));
    const int zero = Find(&panel, QStringLiteral("picRDIs"))->x() + 4;
    const QImage shown = Grab(&panel);
    const QRgb paper = TheStyle().paper.rgb();
    for (int mark : {zero, zero + 50, zero + 100}) {
        int left = mark, right = mark;
        for (int y = scale->y(); y < scale->geometry().bottom(); ++y)
            for (int x = mark - 20; x <= mark + 20; ++x)
                if (shown.pixel(x, y) != paper) {
                    left = qMin(left, x);
                    right = qMax(right, x);
                }
        EXPECT_LT(left, mark - 3);
        EXPECT_NEAR(mark - left, right - mark, 2) << mark;
    }
}

TEST_F(ucDailyTest, BarsFollowThePanelsWidth) {
    Eat({{QStringLiteral("Calories"), 100000}});
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    panel.resize(260, 476);
    EXPECT_EQ(Bar(panel, 1)->Width(), Widest(panel));
    panel.resize(5, 476);
    EXPECT_EQ(Bar(panel, 1)->Width(), 0);
}

// ---- pie

TEST_F(ucDailyTest, ThePieSharesTheCaloriesOfTheThree) {
    Eat({{QStringLiteral("Calories"), 1000},
         {QStringLiteral("TotalFat"), 40},
         {QStringLiteral("Protein"), 60},
         {QStringLiteral("carbs"), 50}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(PieCaptions(panel),
              QStringList({QStringLiteral("Fat 45%"), QStringLiteral("Protein 30%"),
                           QStringLiteral("Carbs. 25%")}));
    EXPECT_EQ(PieText(panel), QStringLiteral("Fat 45%, Protein 30%, Carbs. 25%"));
}

TEST_F(ucDailyTest, ADayOfPureFatReadsAHundredPercent) {
    Eat({{QStringLiteral("Calories"), 900}, {QStringLiteral("TotalFat"), 100}});
    ucDaily panel;
    panel.setDate(Day);
    EXPECT_EQ(PieCaptions(panel),
              QStringList({QStringLiteral("Fat 100%"), QStringLiteral("Protein 0%"),
                           QStringLiteral("Carbs. 0%")}));
}

TEST_F(ucDailyTest, CaloriesFromNoneOfTheThreeDrawNoSectorAndKeepTheCaptions) {
    Eat({{QStringLiteral("Calories"), 400}, {QStringLiteral("TotalFat"), 10}});
    Eat({{QStringLiteral("Calories"), 100}}, Day.addDays(1));
    ucDaily panel;
    panel.setDate(Day);
    const QStringList before = PieCaptions(panel);
    panel.setDate(Day.addDays(1));
    EXPECT_EQ(PieCaptions(panel), before);
    EXPECT_EQ(PieText(panel), QString());
    panel.setDate(Day.addDays(2));
    panel.setDate(Day.addDays(1));
    EXPECT_EQ(Caption(panel, "aafat"), QStringLiteral("Total Fat --"));
}

TEST_F(ucDailyTest, ThePieIsPaintedBlendedInThePanel) {
    SetRegValue(QStringLiteral("DAILYMODE"), QStringLiteral("PIE"));
    Eat({{QStringLiteral("Calories"), 900}, {QStringLiteral("TotalFat"), 100}});
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    const QImage shown = Grab(Find(&panel, QStringLiteral("picPIE")));
    const QColor ground = TheStyle().paper;
    EXPECT_EQ(shown.size(), QSize(108, 108));
    EXPECT_EQ(shown.pixel(30, 54), qRgb((255 * 153 + ground.red() * 102 + 127) / 255,
                                        (30 * 153 + ground.green() * 102 + 127) / 255,
                                        (30 * 153 + ground.blue() * 102 + 127) / 255));
}

// ---- views

TEST_F(ucDailyTest, ToggleShowsOneViewAndNamesIt) {
    ucDaily panel;
    panel.show();
    struct View {
        int mode;
        const char* text;
        const char* caption;
        const char* shown;
    };
    const QList<View> views{{1, "VALS", " Nutrient Values", "picVals"},
                            {2, "PIE", " Caloric Breakdown", "picPieChart"},
                            {0, "RDI", " Percent RDI", "picRDIs"}};
    for (const View& view : views) {
        panel.Toggle(view.mode);
        EXPECT_EQ(panel.Mode(), QLatin1String(view.text));
        EXPECT_EQ(Caption(panel, "ucStrip"), QLatin1String(view.caption));
        for (const View& other : views)
            EXPECT_EQ(IsShown(panel, other.shown), other.mode == view.mode) << other.shown;
        EXPECT_EQ(IsShown(panel, "lblPercents"), view.mode == 0);
        EXPECT_EQ(IsShown(panel, "lbl1"), view.mode != 2);
    }
}

TEST_F(ucDailyTest, ToggleOfAnyOtherNumberDoesNothing) {
    ucDaily panel;
    panel.Toggle(1);
    for (int mode : {-1, 3, 99}) {
        panel.Toggle(mode);
        EXPECT_EQ(panel.Mode(), QStringLiteral("VALS"));
    }
}

TEST_F(ucDailyTest, TheThreeButtonsChooseTheView) {
    ucDaily panel;
    panel.show();
    const QList<QPair<QString, QString>> buttons{
        {QStringLiteral("cmdVals"), QStringLiteral("VALS")},
        {QStringLiteral("cmdPIEChart"), QStringLiteral("PIE")},
        {QStringLiteral("cmdBar"), QStringLiteral("RDI")}};
    for (const auto& [name, mode] : buttons) {
        Click(Find(&panel, name));
        EXPECT_EQ(panel.Mode(), mode);
        for (const auto& [other, unused] : buttons)
            EXPECT_EQ(Find<ucButtonA>(&panel, other)->Chosen(), other == name);
    }
}

TEST_F(ucDailyTest, TheButtonsSayWhatTheyShow) {
    ucDaily panel;
    const QList<QPair<QString, QString>> tips{
        {QStringLiteral("cmdBar"), QStringLiteral("Bar chart of percent RDI")},
        {QStringLiteral("cmdVals"), QStringLiteral("Numeric daily totals")},
        {QStringLiteral("cmdPIEChart"), QStringLiteral("Pie chart of caloric breakdown")}};
    for (const auto& [name, tip] : tips) {
        EXPECT_EQ(Find(&panel, name)->toolTip(), tip);
        EXPECT_EQ(Find(&panel, name)->property("acToolTip").toString(), tip);
        EXPECT_FALSE(Find(&panel, name)->accessibleName().isEmpty());
    }
}

TEST_F(ucDailyTest, TheButtonsAreReachedWithTabAndPressedWithSpace) {
    ucDaily panel;
    panel.show();
    panel.activateWindow();
    Find(&panel, QStringLiteral("cmdBar"))->setFocus();
    QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(panel.focusWidget()->objectName(), QStringLiteral("cmdVals"));
    QTest::keyClick(panel.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(panel.Mode(), QStringLiteral("VALS"));
    QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(panel.focusWidget()->objectName(), QStringLiteral("cmdPIEChart"));
}

TEST_F(ucDailyTest, TheViewOutlivesThePanel) {
    const QList<QPair<int, QString>> modes{
        {1, QStringLiteral("VALS")}, {2, QStringLiteral("PIE")}, {0, QStringLiteral("RDI")}};
    for (const auto& [number, text] : modes) {
        { ucDaily().Toggle(number); }
        EXPECT_EQ(GetRegValue(QStringLiteral("DAILYMODE")), text);
        EXPECT_EQ(ucDaily().Mode(), text);
    }
}

TEST_F(ucDailyTest, TheStoredViewIsReadWithoutRegardToCase) {
    SetRegValue(QStringLiteral("DAILYMODE"), QStringLiteral("vals"));
    EXPECT_EQ(ucDaily().Mode(), QStringLiteral("VALS"));
    SetRegValue(QStringLiteral("DAILYMODE"), QStringLiteral("Pie"));
    EXPECT_EQ(ucDaily().Mode(), QStringLiteral("PIE"));
}

TEST_F(ucDailyTest, AnUnknownStoredViewGivesTheBarsAndIsReplaced) {
    for (const char* nonsense : {"", "PIES", " VALS", "1", "\xf0\x9f\x8d\x8e"}) {
        SetRegValue(QStringLiteral("DAILYMODE"), QString::fromUtf8(nonsense));
        EXPECT_EQ(ucDaily().Mode(), QStringLiteral("RDI")) << nonsense;
        EXPECT_EQ(GetRegValue(QStringLiteral("DAILYMODE")), QStringLiteral("RDI")) << nonsense;
    }
}

TEST_F(ucDailyTest, ValueLabelsAreAsWideAsTheirText) {
    Eat({{QStringLiteral("Calories"), 100}});
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    panel.Toggle(1);
    EXPECT_EQ(Value(panel, 1)->size(), Value(panel, 1)->sizeHint());
    Eat({{QStringLiteral("Calories"), 100000}});
    panel.updateCharts();
    EXPECT_EQ(Value(panel, 1)->size(), Value(panel, 1)->sizeHint());
}

// ---- pointer

TEST_F(ucDailyTest, ThePointerOverALabelABarOrAValueHighlightsOnlyItsRow) {
    Eat({{QStringLiteral("Calories"), 1000}, {QStringLiteral("TotalFat"), 30}});
    ucDaily panel;
    panel.setDate(Day);
    panel.show();
    const QList<QWidget*> controls{Name(panel, 1), Bar(panel, 2), Value(panel, 5)};
    const QList<int> rows{1, 2, 5};
    for (int i = 0; i < controls.size(); ++i) {
        Hover(controls[i], QPoint(1, 1));
        for (int row = 1; row <= 28; ++row) {
            const bool lit = row == rows[i];
            const QColor colour = lit ? QColor(181, 128, 88) : QColor(0, 0, 0);
            EXPECT_EQ(Name(panel, row)->ForeColor(), colour) << row;
            EXPECT_EQ(Value(panel, row)->ForeColor(), colour) << row;
            EXPECT_EQ(Bar(panel, row)->Hilited(), lit) << row;
        }
    }
    panel.Unhilite();
    EXPECT_FALSE(Bar(panel, 5)->Hilited());
    EXPECT_EQ(Name(panel, 5)->ForeColor(), QColor(0, 0, 0));
}

TEST_F(ucDailyTest, TheRowStaysHighlightedThoughTheHostTakesOffAllHighlights) {
    ucDaily panel;
    panel.show();
    QObject::connect(&panel, &ucDaily::MouseMove, [&panel] {
        panel.Unhilite();
        panel.AllOff({});
    });
    Hover(Name(panel, 3), QPoint(2, 2));
    EXPECT_TRUE(Bar(panel, 3)->Hilited());
}

TEST_F(ucDailyTest, OnlyMovesOverRowsValuesAndBackgroundAreRaised) {
    ucDaily panel;
    panel.show();
    QSignalSpy moves(&panel, &ucDaily::MouseMove);
    for (const char* quiet :
         {"imgBar1", "picPIE", "picPieChart", "picRDIs", "Picture1", "ucStrip", "aafat"})
        Hover(Find(&panel, QLatin1String(quiet)), QPoint(1, 1));
    EXPECT_EQ(moves.count(), 0);
    for (const char* loud : {"lbl1", "lblVal1", "picVals"})
        Hover(Find(&panel, QLatin1String(loud)), QPoint(1, 1));
    Hover(&panel, QPoint(20, 470));
    EXPECT_EQ(moves.count(), 4);
    EXPECT_EQ(moves.last(), QVariantList({0, 0, 300.0, 7050.0}));
}

TEST_F(ucDailyTest, MovesOverTheViewsTakeTheHighlightOff) {
    ucDaily panel;
    panel.show();
    for (const char* name : {"picPIE", "picPieChart", "picRDIs", "Picture1", "ucStrip", "picVals",
                             "cmdBar", "cmdVals", "cmdPIEChart"}) {
        Hover(Name(panel, 3), QPoint(2, 2));
        Hover(Find(&panel, QLatin1String(name)), QPoint(3, 3));
        EXPECT_FALSE(Bar(panel, 3)->Hilited()) << name;
    }
}

TEST_F(ucDailyTest, LeavingThePanelTakesEveryHighlightOff) {
    ucDaily panel;
    panel.show();
    Hover(Find(&panel, QStringLiteral("cmdVals")));
    Hover(Name(panel, 3), QPoint(2, 2));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&panel, &leave);
    EXPECT_FALSE(Bar(panel, 3)->Hilited());
    EXPECT_EQ(Find<ucButtonA>(&panel, QStringLiteral("cmdVals"))->Shown(),
              QStringLiteral("img_NORM"));
}

TEST_F(ucDailyTest, AllOffLeavesTheNamedButtonLit) {
    ucDaily panel;
    panel.show();
    auto* bar = Find<ucButtonA>(&panel, QStringLiteral("cmdBar"));
    auto* values = Find<ucButtonA>(&panel, QStringLiteral("cmdVals"));
    Hover(bar);
    EXPECT_EQ(bar->Shown(), QStringLiteral("img_ROLL"));
    Hover(values);
    EXPECT_EQ(bar->Shown(), QStringLiteral("img_NORM"));
    EXPECT_EQ(values->Shown(), QStringLiteral("img_ROLL"));
    panel.AllOff(QStringLiteral("cmdvals"));
    EXPECT_EQ(values->Shown(), QStringLiteral("img_ROLL"));
    panel.AllOff({});
    EXPECT_EQ(values->Shown(), QStringLiteral("img_NORM"));
}

// ---- assistive programs

TEST_F(ucDailyTest, AssistiveProgramsReadNameValueAndPercentOfEachRow) {
    Eat({{QStringLiteral("Calories"), 500}, {QStringLiteral("Iron"), 10}});
    User::Current().RDIs.Set(Nutrient::Iron, 0);
    ucDaily panel;
    panel.setDate(Day);
    const auto spoken = [](QWidget* control, QAccessible::Text text) {
        return QAccessible::queryAccessibleInterface(control)->text(text);
    };
    EXPECT_EQ(spoken(Name(panel, 1), QAccessible::Name), QStringLiteral("Calories"));
    EXPECT_EQ(spoken(Name(panel, 1), QAccessible::Value), QStringLiteral("500 kcal, 25%"));
    EXPECT_EQ(spoken(Bar(panel, 1), QAccessible::Name), QStringLiteral("Calories"));
    EXPECT_EQ(spoken(Bar(panel, 1), QAccessible::Value), QStringLiteral("25%"));
    EXPECT_EQ(spoken(Value(panel, 1), QAccessible::Name), Leader + QStringLiteral("500 kcal"));
    EXPECT_EQ(spoken(Name(panel, 14), QAccessible::Value), QStringLiteral("10 mg"));
}

} // namespace
