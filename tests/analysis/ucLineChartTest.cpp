#include "analysis/ui/ucLineChart.h"

#include "AnalysisTest.h"
#include "analysis/ui/AxisLabel.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Failure.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest/qtestspontaneevent.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include <cmath>

namespace {

const QDate Day(2002, 4, 3);
const QString NoData = QStringLiteral("No weight data To chart");
constexpr int FirstMiddle = 945 + 495; ///< of the leftmost date label, in twips

class ucLineChartTest : public AnalysisTest {
protected:
    struct Weight {
        int day; ///< after Day
        double weight;
    };

    using AnalysisTest::Weigh;
    void Weigh(const std::vector<Weight>& weights) {
        for (const Weight& entry : weights)
            Weigh(entry.weight, Day.addDays(entry.day));
    }
    /// Shows the entries from Day on.
    void Update(ucLineChart& chart, int days = 4000) {
        chart.updateLineChart(Day, Day.addDays(days));
    }

    AxisLabel* DateLabel(const ucLineChart& chart, int i) {
        return Find<AxisLabel>(&chart, QStringLiteral("lblDate%1").arg(i));
    }
    AxisLabel* WeightLabel(const ucLineChart& chart, int i) {
        return Find<AxisLabel>(&chart, QStringLiteral("lblWeight%1").arg(i));
    }
    QStringList WeightTexts(const ucLineChart& chart) {
        QStringList texts;
        for (int i = 0; i < 8; ++i)
            texts << WeightLabel(chart, i)->Caption();
        return texts;
    }
    /// "INDEX DATE" of the date labels that are shown.
    QStringList DateTexts(const ucLineChart& chart) {
        QStringList texts;
        for (int i = 0; i < 5; ++i)
            if (!DateLabel(chart, i)->isHidden())
                texts << QString::number(i) + u' ' + DateLabel(chart, i)->Caption();
        return texts;
    }
    /// It would cover the tops of the lines.
    void HideHeader(ucLineChart& chart) { Find(&chart, QStringLiteral("ucHeader1"))->hide(); }
    static std::vector<std::array<int, 3>> PointsOf(const ucLineChart& chart) {
        std::vector<std::array<int, 3>> points;
        for (const PlotPoint& point : chart.Points())
            points.push_back({point.x, point.y, point.weight});
        return points;
    }
    static QString Spoken(ucLineChart& chart) {
        return QAccessible::queryAccessibleInterface(&chart)->text(QAccessible::Value);
    }
    static QImage Painted(ucLineChart& chart, int scale = 1) {
        QImage picture(chart.size() * scale, QImage::Format_RGB32);
        QPainter painter(&picture);
        chart.PaintChart(painter, picture.rect());
        return picture;
    }
    static int Count(const QImage& picture, const QRect& place, QRgb colour) {
        int count = 0;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                count += picture.pixel(x, y) == colour;
        return count;
    }
    void ExpectNotice(ucLineChart& chart, bool there) {
        const QImage picture = Painted(chart);
        EXPECT_EQ(Count(picture, picture.rect(), qRgb(255, 0, 0)) > 50, there);
    }

    const QRgb paper = TheStyle().paper.rgb();
    const QRgb light = qRgb(222, 222, 222);
    const QRgb dark = qRgb(111, 111, 111);
};

using Points = std::vector<std::array<int, 3>>;

} // namespace

// ---- which entries count

TEST_F(ucLineChartTest, EntriesOfTheUserWithinThePeriodAreReadInTheOrderOfTheirDays) {
    Weigh({{2, 152}, {0, 150}, {1, 151}});
    Weigh({{-1, 200}, {3, 200}});
    ++User::Current().UID;
    Weigh(300, Day);
    --User::Current().UID;
    ucLineChart chart;
    Update(chart, 2);
    EXPECT_EQ(Spoken(chart),
              QStringLiteral("4/3/2002 150 lbs, 4/4/2002 151 lbs, 4/5/2002 152 lbs"));
    EXPECT_EQ(DateTexts(chart), (QStringList{"0 4/3/2002", "2 4/4/2002", "4 4/5/2002"}));
}

TEST_F(ucLineChartTest, AWeightOfZeroIsNotPlottedAndDoesNotCount) {
    Weigh({{0, 0}, {1, 150}, {2, 0}, {3, 152}, {9, 0}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(DateTexts(chart), (QStringList{"0 4/4/2002", "2 4/5/2002", "4 4/6/2002"}));
    EXPECT_EQ(WeightTexts(chart).last(), QStringLiteral("150"));
    EXPECT_EQ(chart.Points().size(), 2U);
}

TEST_F(ucLineChartTest, TheAxesDependOnTheEntriesNotOnThePeriod) {
    Weigh({{10, 150}, {12, 151}});
    ucLineChart narrow, wide;
    narrow.updateLineChart(Day.addDays(10), Day.addDays(12));
    wide.updateLineChart(Day.addDays(-500), Day.addDays(500));
    EXPECT_EQ(DateTexts(narrow), DateTexts(wide));
    EXPECT_EQ(PointsOf(narrow), PointsOf(wide));
}

TEST_F(ucLineChartTest, MonthAndDayAreNotSwapped) {
    Weigh(150, QDate(2002, 3, 4));
    ucLineChart chart;
    chart.updateLineChart(QDate(2002, 4, 3), QDate(2002, 4, 3));
    EXPECT_EQ(Spoken(chart), NoData);
    chart.updateLineChart(QDate(2002, 3, 4), QDate(2002, 3, 4));
    EXPECT_EQ(Spoken(chart), QStringLiteral("3/4/2002 150 lbs"));
}

TEST_F(ucLineChartTest, DaysOf1901AndOf2150AreShown) {
    Weigh(150, QDate(1901, 1, 1));
    Weigh(160, QDate(2150, 12, 31));
    ucLineChart chart;
    chart.updateLineChart(QDate(1900, 1, 1), QDate(1950, 1, 1));
    EXPECT_EQ(DateTexts(chart), QStringList{"0 1/1/1901"});
    chart.updateLineChart(QDate(2101, 1, 1), QDate(2151, 1, 1));
    EXPECT_EQ(DateTexts(chart), QStringList{"0 12/31/2150"});
}

TEST_F(ucLineChartTest, AFailingQueryLeavesAxesWithoutALine) {
    Weigh({{0, 150}, {1, 151}});
    ucLineChart chart;
    Update(chart);
    Users(QStringLiteral("ALTER TABLE USER_WEIGHTS RENAME TO gone"));
    EXPECT_LT(FailureOf([&] { Update(chart); }), 0);
    EXPECT_TRUE(chart.Points().empty());
    EXPECT_EQ(chart.SpokenValue(), QString());
    EXPECT_EQ(DateTexts(chart).size(), 2);
    ExpectNotice(chart, false);
}

// ---- without data

TEST_F(ucLineChartTest, WithoutAnyEntryTheNoticeStandsOnBareAxes) {
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(Spoken(chart), NoData);
    EXPECT_EQ(DateTexts(chart), QStringList());
    EXPECT_EQ(WeightTexts(chart), QStringList(8, QString()));
    const QImage picture = Painted(chart);
    const QFont font = TheStyle().chartNotice;
    EXPECT_EQ(font.pointSizeF(), 12);
    EXPECT_TRUE(font.bold());
    const QSizeF text = QFontMetricsF(SmoothedFont(font)).size(0, NoData);
    const QRect place(QPoint(260, 133), text.toSize() + QSize(2, 2));
    EXPECT_GT(Count(picture, place, qRgb(255, 0, 0)), 50);
    const QRect beside(place.left() - 100, place.top(), 100, place.height());
    EXPECT_EQ(Count(picture, beside, qRgb(255, 0, 0)), 0);
    EXPECT_EQ(picture.pixel(600, 222), light);
}

TEST_F(ucLineChartTest, TheNoticeKeepsTheLabelsOfThePeriodBefore) {
    Weigh({{0, 150}, {1, 151}});
    ucLineChart chart;
    Update(chart);
    const QStringList dates = DateTexts(chart), weights = WeightTexts(chart);
    chart.updateLineChart(Day.addDays(100), Day.addDays(200));
    EXPECT_EQ(DateTexts(chart), dates);
    EXPECT_EQ(WeightTexts(chart), weights);
    EXPECT_TRUE(chart.Points().empty());
    ExpectNotice(chart, true);
    EXPECT_EQ(Painted(chart).pixel(FirstMiddle / 15, 300), dark);
}

TEST_F(ucLineChartTest, AnEndBeforeTheStartHasNoEntries) {
    Weigh({{0, 150}, {1, 151}});
    ucLineChart chart;
    chart.updateLineChart(Day.addDays(1), Day);
    EXPECT_EQ(Spoken(chart), NoData);
}

TEST_F(ucLineChartTest, NewDataRemovesTheNotice) {
    ucLineChart chart;
    Update(chart);
    ExpectNotice(chart, true);
    Weigh({{0, 150}});
    Update(chart);
    ExpectNotice(chart, false);
    EXPECT_EQ(Spoken(chart), QStringLiteral("4/3/2002 150 lbs"));
}

// ---- the axes

TEST_F(ucLineChartTest, LabelsStandAtTheirPlaces) {
    Weigh({{0, 150}, {3, 151}});
    ucLineChart chart;
    Update(chart);
    const int tops[] = {570, 1230, 1890, 2550, 3225, 3885, 4545, 5205};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(WeightLabel(chart, i)->Left(), 105);
        EXPECT_EQ(WeightLabel(chart, i)->Top(), tops[i]);
        EXPECT_EQ(WeightLabel(chart, i)->Height(), 210);
    }
    EXPECT_EQ(DateLabel(chart, 0)->Left(), 945);
    EXPECT_EQ(DateLabel(chart, 1)->Left(), 945 + 8200 / 3.0);
    EXPECT_EQ(DateLabel(chart, 3)->Left(), 945 + 2 * 8200 / 3.0);
    EXPECT_EQ(DateLabel(chart, 4)->Left(), 945 + 8200);
    EXPECT_TRUE(DateLabel(chart, 2)->isHidden());
}

TEST_F(ucLineChartTest, TheSurfaceIs10740By6000Twips) {
    ucLineChart chart;
    EXPECT_EQ(chart.size(), QSize(716, 400));
}

TEST_F(ucLineChartTest, OneEntryHasOneLabelInTheMiddleAndIsADot) {
    Weigh({{0, 150}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(DateTexts(chart), QStringList{"0 4/3/2002"});
    EXPECT_EQ(DateLabel(chart, 0)->Left(), 945 + 4100);
    EXPECT_EQ(PointsOf(chart), (Points{{FirstMiddle + 4100, 5310, 150}}));
    const QImage picture = Painted(chart, 4);
    const QPoint middle = QPoint((FirstMiddle + 4100) / 15 * 4 + 2, 5310 / 15 * 4 + 2);
    EXPECT_EQ(picture.pixel(middle + QPoint(6, -4)), qRgb(255, 200, 200));
    EXPECT_EQ(picture.pixel(middle + QPoint(-14, 0)), qRgb(192, 0, 0));
}

TEST_F(ucLineChartTest, TwoEntriesADayApartSpanTheFullWidth) {
    Weigh({{0, 150}, {1, 157}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(DateTexts(chart), (QStringList{"0 4/3/2002", "4 4/4/2002"}));
    EXPECT_EQ(PointsOf(chart), (Points{{FirstMiddle, 5310, 150}, {FirstMiddle + 8200, 675, 157}}));
}

TEST_F(ucLineChartTest, EntriesTenDaysApartEndShortOfTheLastLabel) {
    Weigh({{0, 150}, {10, 157}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(DateTexts(chart), (QStringList{"0 4/3/2002", "1 4/6/2002", "2 4/9/2002",
                                             "3 4/12/2002", "4 4/15/2002"}));
    EXPECT_EQ(PointsOf(chart).back()[0], FirstMiddle + 10 * 683);
}

TEST_F(ucLineChartTest, AConstantWeightOverAHundredDaysTakesStepsOfThirteenPounds) {
    for (int day = 0; day <= 100; ++day)
        Weigh({{day, 150}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(WeightTexts(chart),
              (QStringList{"241", "228", "215", "202", "189", "176", "163", "150"}));
    for (const auto& [x, y, weight] : PointsOf(chart))
        EXPECT_EQ(y, 5310);
}

TEST_F(ucLineChartTest, HiddenLabelsOfALongerPeriodDoNotStayBehind) {
    Weigh({{0, 150}, {20, 151}, {100, 152}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(DateTexts(chart).size(), 5);
    chart.updateLineChart(Day.addDays(100), Day.addDays(100));
    EXPECT_EQ(DateTexts(chart), QStringList{"0 7/12/2002"});
    EXPECT_NE(Painted(chart).pixel(FirstMiddle / 15, 300), dark);
}

TEST_F(ucLineChartTest, AGridLineStandsAtTheMiddleOfEachShownLabel) {
    Weigh({{0, 150}, {1, 150}});
    ucLineChart chart;
    HideHeader(chart);
    Update(chart);
    const QImage picture = Painted(chart);
    for (const int middle : {675, 1335, 1995, 2655, 3330, 3990, 4650}) {
        EXPECT_EQ(picture.pixel(960 / 15, middle / 15), light);
        EXPECT_EQ(picture.pixel(300, middle / 15), light);
        EXPECT_EQ(picture.pixel(713, middle / 15), light);
        EXPECT_EQ(picture.pixel(714, middle / 15), paper);
        EXPECT_EQ(picture.pixel(300, middle / 15 - 1), paper);
        EXPECT_EQ(picture.pixel(300, middle / 15 + 1), paper);
    }
    for (const int x : {FirstMiddle, FirstMiddle + 8200}) {
        const int column = qRound(x / 15.0);
        EXPECT_EQ(picture.pixel(column, 10), dark);
        EXPECT_EQ(picture.pixel(column, 9), paper);
        EXPECT_EQ(picture.pixel(column, 200), dark);
        EXPECT_EQ(picture.pixel(column - 1, 200), paper);
        EXPECT_EQ(picture.pixel(column + 1, 200), paper);
        EXPECT_EQ(picture.pixel(column, 397), dark);
        EXPECT_EQ(picture.pixel(column, 398), paper);
    }
    EXPECT_EQ(picture.pixel(FirstMiddle / 15 + 8200 / 30, 200), paper);
}

TEST_F(ucLineChartTest, ABlackAxisAndABrownBorderFrameTheChart) {
    ucLineChart chart;
    HideHeader(chart);
    const QImage picture = Painted(chart);
    const QRgb brown = qRgb(180, 105, 12);
    for (const QPoint corner : {QPoint(0, 0), QPoint(715, 0), QPoint(0, 399), QPoint(715, 399)})
        EXPECT_EQ(picture.pixel(corner), brown);
    EXPECT_EQ(picture.pixel(1, 1), paper);
    EXPECT_EQ(picture.pixel(63, 9), paper);
    EXPECT_EQ(picture.pixel(63, 10), qRgb(0, 0, 0));
    EXPECT_EQ(picture.pixel(63, 397), qRgb(0, 0, 0));
    EXPECT_EQ(picture.pixel(63, 398), paper);
}

TEST_F(ucLineChartTest, AWiderAndHigherSurfaceLengthensTheLinesAndKeepsTheLabelsInPlace) {
    Weigh({{0, 150}, {1, 150}});
    ucLineChart chart;
    chart.resize(738, 468);
    chart.show();
    Update(chart);
    const QImage picture = Painted(chart);
    EXPECT_EQ(picture.pixel(738 - 3, 45), light);
    EXPECT_EQ(picture.pixel(FirstMiddle / 15, 465), dark);
    EXPECT_EQ(WeightLabel(chart, 0)->Top(), 570);
    EXPECT_EQ(DateLabel(chart, 4)->Left(), 945 + 8200);
    EXPECT_GT(DateLabel(chart, 4)->Top(), 468 * 15 - 600);
}

TEST_F(ucLineChartTest, LabelsNeverRunIntoEachOtherOrOutOfTheSurface) {
    const QDate last(9999, 12, 31);
    ucLineChart chart;
    chart.show();
    for (const int days : {0, 1, 2, 3, 4, 5, 10, 30, 365, 3652, 36525}) {
        Users(QStringLiteral("DELETE FROM USER_WEIGHTS"));
        Weigh(1000000, last.addDays(-days));
        Weigh(2147483647, last);
        chart.updateLineChart(last.addDays(-days), last);
        QList<AxisLabel*> shown;
        for (AxisLabel* label : chart.findChildren<AxisLabel*>())
            if (label->isVisible())
                shown << label;
        for (const AxisLabel* label : shown) {
            EXPECT_TRUE(chart.rect().adjusted(1, 1, -1, -1).contains(label->geometry())) << days;
            for (const AxisLabel* other : shown)
                EXPECT_TRUE(label == other || !label->geometry().intersects(other->geometry()))
                    << days;
            const double text =
                QFontMetricsF(SmoothedFont(TheStyle().small)).horizontalAdvance(label->Caption());
            if (label->objectName().startsWith(QStringLiteral("lblDate"))) {
                EXPECT_LE(text, label->width()) << label->Caption().toStdString();
            }
        }
    }
}

TEST_F(ucLineChartTest, ALabelThatIsTooWideIsCutAndCrossesNothing) {
    Weigh({{0, 2147483647}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(WeightLabel(chart, 7)->Caption(), QStringLiteral("2147483647"));
    const QImage picture = Painted(chart);
    EXPECT_EQ(Count(picture, QRect(1, 30, 6, 365), paper), 6 * 365);
    EXPECT_EQ(Count(picture, QRect(60, 30, 3, 365), paper), 3 * 365);
}

TEST_F(ucLineChartTest, AWeightBeyondAWholeNumberIsPassedOver) {
    Weigh({{0, 180}, {1, 3e9}});
    ucLineChart chart;
    Update(chart);
    EXPECT_EQ(Spoken(chart).count(QStringLiteral("lbs")), 1) << Spoken(chart).toStdString();
}

// ---- the line

TEST_F(ucLineChartTest, PointsStandAtTheirDayAndTheirWeight) {
    Weigh({{0, 150.5}, {2, 153.25}, {4, 157}});
    ucLineChart chart;
    Update(chart);
    // Least and greatest are 150 and 157, so the labels are a pound apart.
    EXPECT_EQ(PointsOf(chart), (Points{{FirstMiddle, 4980, 150},
                                       {FirstMiddle + 2 * 2050, 3161, 153},
                                       {FirstMiddle + 4 * 2050, 675, 157}}));
}

TEST_F(ucLineChartTest, TheLineRunsThroughItsPointsInBothPens) {
    ucLineChart chart;
    chart.Liner({{1500, 3000, 150}, {7500, 3000, 150}});
    const QImage picture = Painted(chart, 4);
    const auto at = [&](int x, int y) { return picture.pixel(x * 4 + 2, y * 4 + 2); };
    EXPECT_EQ(at(300, 199), qRgb(255, 128, 128)); // the lighter pen, a pixel higher
    EXPECT_EQ(at(300, 201), qRgb(192, 0, 0));
    EXPECT_EQ(at(300, 198 - 1), paper);
    EXPECT_EQ(at(300, 203), paper);
    EXPECT_EQ(at(90, 200), paper);
    EXPECT_EQ(at(510, 200), paper);
}

TEST_F(ucLineChartTest, ADotOfFourTonesStandsOnEachPoint) {
    ucLineChart chart;
    chart.Liner({{1500, 3000, 150}, {4500, 4500, 140}, {7500, 3000, 150}});
    const QImage picture = Painted(chart, 4);
    for (const QPoint point : {QPoint(100, 200), QPoint(300, 300), QPoint(500, 200)}) {
        const QPoint lower = point * 4 + QPoint(2, 2);
        const QPoint upper = lower + QPoint(4, -4); // one pixel right and up
        EXPECT_EQ(picture.pixel(upper), qRgb(255, 200, 200));
        EXPECT_EQ(picture.pixel(upper + QPoint(5, 0)), qRgb(255, 170, 170));
        EXPECT_EQ(picture.pixel(upper + QPoint(0, -5)), qRgb(255, 170, 170));
        EXPECT_EQ(picture.pixel(upper + QPoint(0, -9)), qRgb(255, 128, 128));
        EXPECT_EQ(picture.pixel(lower + QPoint(-9, 11)), qRgb(192, 0, 0));
        EXPECT_EQ(picture.pixel(lower + QPoint(0, 18)), paper);
    }
}

TEST_F(ucLineChartTest, OnlyTheLastTwoPensAreDrawnWith) {
    ucLineChart chart;
    chart.Liner({{1500, 3000, 150}, {7500, 4500, 150}});
    const QImage picture = Painted(chart, 4);
    for (int pen = 0; pen < 3; ++pen)
        EXPECT_EQ(Count(picture, picture.rect(), TheStyle().ln[pen].colour.rgb()), 0) << pen;
    const int widths[] = {10, 8, 6, 4, 2};
    for (int pen = 0; pen < 5; ++pen)
        EXPECT_EQ(TheStyle().ln[pen].width, widths[pen]);
}

TEST_F(ucLineChartTest, ThePrintedPictureIsTheSameInAnySize) {
    Weigh({{0, 150}, {3, 153}, {9, 151}});
    ucLineChart chart;
    Update(chart);
    const QImage small = Painted(chart).convertToFormat(QImage::Format_Grayscale8);
    const QImage large = Painted(chart, 3)
                             .scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_Grayscale8);
    qint64 difference = 0;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            difference += qAbs(qGray(small.pixel(x, y)) - qGray(large.pixel(x, y)));
    EXPECT_LT(double(difference) / (small.width() * small.height()), 2.0);
}

TEST_F(ucLineChartTest, TheScreenShowsWhatIsPrinted) {
    Weigh({{0, 150}, {3, 153}, {9, 151}});
    ucLineChart chart;
    Update(chart);
    const QImage printed = Painted(chart);
    const QImage shown = Grab(&chart);
    const QRect belowHeader(0, 30, 716, 370);
    EXPECT_EQ(shown.copy(belowHeader), printed.copy(belowHeader));
}

// ---- what the host sees of it

TEST_F(ucLineChartTest, MovesOverBackgroundLabelsAndHeaderAreRaised) {
    Weigh({{0, 150}, {1, 151}});
    ucLineChart chart;
    Update(chart);
    chart.show();
    QSignalSpy moves(&chart, &ucLineChart::MouseMove);
    Hover(&chart, QPoint(300, 300));
    EXPECT_EQ(moves.count(), 1);
    Hover(WeightLabel(chart, 3));
    EXPECT_EQ(moves.count(), 2);
    Hover(DateLabel(chart, 4));
    EXPECT_EQ(moves.count(), 3);
    Hover(Find(&chart, QStringLiteral("ucHeader1")));
    EXPECT_EQ(moves.count(), 4);
}

TEST_F(ucLineChartTest, EachTimeItIsShownItReadsThePeriodFromTheFields) {
    Weigh({{0, 150}, {1, 151}});
    QLineEdit txtStart(QStringLiteral("4/3/2002")), txtEnd(QStringLiteral("4/3/2002"));
    ucLineChart chart;
    chart.ReadPeriodFrom(&txtStart, &txtEnd);
    chart.show();
    EXPECT_EQ(Spoken(chart), QStringLiteral("4/3/2002 150 lbs"));
    txtEnd.setText(QStringLiteral("April 4, 2002"));
    EXPECT_EQ(Spoken(chart), QStringLiteral("4/3/2002 150 lbs"));
    chart.hide();
    chart.show();
    EXPECT_EQ(Spoken(chart), QStringLiteral("4/3/2002 150 lbs, 4/4/2002 151 lbs"));
}

TEST_F(ucLineChartTest, BeforeTheProgramHasStartedItReadsNothing) {
    CloseDatabases();
    App().AppStarted = false;
    QLineEdit txtStart(QStringLiteral("rubbish")), txtEnd(QStringLiteral("rubbish"));
    ucLineChart chart;
    chart.ReadPeriodFrom(&txtStart, &txtEnd);
    chart.show();
    EXPECT_EQ(Spoken(chart), QString());
}

TEST_F(ucLineChartTest, ATextThatIsNoDateFailsWhenItIsShown) {
    QLineEdit txtStart(QStringLiteral("4/3/2002")), txtEnd(QStringLiteral("2/30/2002"));
    ucLineChart chart;
    chart.ReadPeriodFrom(&txtStart, &txtEnd);
    QShowEvent show;
    EXPECT_EQ(FailureOf([&] { static_cast<QObject&>(chart).event(&show); }),
              ErrorNumber::TypeMismatch);
}

TEST_F(ucLineChartTest, AWindowThatIsNoLongerMinimisedReadsNothing) {
    QLineEdit txtStart(QStringLiteral("rubbish")), txtEnd(QStringLiteral("rubbish"));
    ucLineChart chart;
    chart.ReadPeriodFrom(&txtStart, &txtEnd);
    QShowEvent show;
    QSpontaneKeyEvent::setSpontaneous(&show);
    static_cast<QObject&>(chart).event(&show);
    EXPECT_EQ(Spoken(chart), QString());
}

TEST_F(ucLineChartTest, AssistiveProgramsReadTheFigures) {
    Weigh({{0, 150.5}, {40, 149}});
    ucLineChart chart;
    Update(chart);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&chart);
    EXPECT_EQ(spoken->role(), QAccessible::Chart);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Weights of the period"));
    EXPECT_EQ(spoken->text(QAccessible::Value),
              QStringLiteral("4/3/2002 150.5 lbs, 5/13/2002 149 lbs"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(WeightLabel(chart, 7))->text(QAccessible::Name),
              QStringLiteral("149"));
}

// ---- against a calculation of its own

namespace {

/// The same rules a second time, step by step, as a person would do it on paper.
struct OnPaper {
    QStringList dates; ///< "INDEX DATE LEFT"
    QStringList weights;
    Points points;

    static long Whole(double value) { return std::lrint(value); } // half to even by default

    explicit OnPaper(const std::vector<std::pair<QDate, double>>& log) {
        const QDate first = log.front().first;
        const long days = long(first.daysTo(log.back().first));
        LayDates(first, days);
        double least = log.front().second, greatest = least;
        for (const auto& [day, weight] : log) {
            least = std::min(least, weight);
            greatest = std::max(greatest, weight);
        }
        const long min = Whole(least), max = Whole(greatest);
        long tick = Whole(double(max - min) / 7);
        while (tick * 8 < days)
            ++tick;
        if (tick < 1)
            tick = 1;
        for (int i = 0; i < 8; ++i)
            weights << QString::number((7 - i) * tick + min);
        const double scale = 1650.0 / double(max - min < 1 ? 1 : max - min);
        for (const auto& [day, weight] : log)
            points.push_back({int(Whole(firstMiddle) + first.daysTo(day) * perDay),
                              Height(weight, max, scale), int(Whole(weight))});
    }

private:
    void Lay(int index, QDate day, double left) {
        dates << QStringLiteral("%1 %2 %3").arg(index).arg(day.toString("M/d/yyyy")).arg(left);
    }
    void LayDates(QDate first, long days) {
        if (days == 0) {
            Lay(0, first, 945 + 8200 / 2.0);
            firstMiddle += 4100;
        } else if (days == 1) {
            Lay(0, first, 945);
            Lay(4, first.addDays(1), 945 + 8200.0);
            perDay = 8200;
        } else if (days == 2) {
            Lay(0, first, 945);
            Lay(2, first.addDays(1), 945 + 8200 / 2.0);
            Lay(4, first.addDays(2), 945 + 8200.0);
            perDay = 4100;
        } else if (days == 3) {
            Lay(0, first, 945);
            Lay(1, first.addDays(1), 945 + 8200 / 3.0);
            Lay(3, first.addDays(2), 945 + 2 * 8200 / 3.0);
            Lay(4, first.addDays(3), 945 + 8200.0);
            perDay = 2733;
        } else {
            long step = Whole(double(days) / 4);
            while (step * 4 < days)
                ++step;
            for (int k = 0; k < 5; ++k)
                Lay(k, first.addDays(k * step), 945 + k * 8200 / 4.0);
            perDay = int(Whole(8200.0 / double(step * 4)));
        }
    }
    int Height(double weight, long max, double scale) const {
        const int tops[] = {570, 1230, 1890, 2550, 3225, 3885, 4545, 5205};
        long y = Whole(570 + 105 + (double(max) - weight) * scale);
        for (int i = 0; i <= 6; ++i) {
            const double a = weights[i].toDouble(), b = weights[i + 1].toDouble();
            if (weight == a)
                y = tops[i] + 105;
            else if (weight == b)
                y = tops[i + 1] + 105;
            else if (b < weight && weight < a)
                y = Whole(tops[i + 1] + 105 - (tops[i + 1] - tops[i]) * (weight - b) / (a - b));
        }
        return int(y);
    }

    double firstMiddle = 945 + 495;
    int perDay = 0;
};

} // namespace

TEST_F(ucLineChartTest, AThousandRandomLogsAgreeWithASecondCalculation) {
    QRandomGenerator random(20020403);
    ucLineChart chart;
    const SQLite::Transaction oneCommit(UserDB().Raw());
    for (int log = 0; log < 1000; ++log) {
        User::Current().UID = 1000 + log;
        const int spans[] = {1, 2, 3, 4, 5, 12, 40, 400, 4000};
        const int span = spans[random.bounded(9)];
        const double middle = 90 + random.bounded(220);
        const int range = 1 + random.bounded(60);
        std::vector<std::pair<QDate, double>> entries;
        for (int day = 0; day < span; day += 1 + random.bounded(1 + span / 8)) {
            const double weight = middle + random.bounded(range * 8) / 8.0;
            entries.emplace_back(Day.addDays(day), weight);
            Weigh(weight, Day.addDays(day));
        }
        Update(chart);
        const OnPaper expected(entries);
        QStringList dates;
        for (int i = 0; i < 5; ++i)
            if (const AxisLabel* label = DateLabel(chart, i); !label->isHidden())
                dates << QStringLiteral("%1 %2 %3").arg(i).arg(label->Caption()).arg(label->Left());
        ASSERT_EQ(dates, expected.dates) << log;
        ASSERT_EQ(WeightTexts(chart), expected.weights) << log;
        ASSERT_EQ(PointsOf(chart), expected.points) << log;
    }
}
