#include "analysis/WeightCurve.h"

#include "analysis/charts/WeightCurvePainting.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"

#include <QPainter>

namespace {

const QDate First(2002, 4, 3);
constexpr int FirstMiddle = 945 + 495;

WeightCurve Curve() {
    return WeightCurve::Of({{150, First}, {153.25, First.addDays(2)}, {157, First.addDays(4)}},
                           {150, 157});
}

} // namespace

TEST(WeightCurveTest, PointsStandAtTheirDayAndTheirWeight) {
    EXPECT_EQ(Curve().points, (std::vector<PlotPoint>{{FirstMiddle, 5310, 150},
                                                      {FirstMiddle + 2 * 2050, 3161, 153},
                                                      {FirstMiddle + 4 * 2050, 675, 157}}));
    EXPECT_FALSE(Curve().noData);
}

TEST(WeightCurveTest, TheAxesFollowFromTheEntries) {
    const WeightCurve curve = Curve();
    ASSERT_EQ(curve.dates.size(), 5U);
    EXPECT_EQ(curve.dates.front(), (DateAxis::Label{0, First, 945}));
    EXPECT_EQ(curve.dates.back(), (DateAxis::Label{4, First.addDays(4), 945 + 8200}));
    EXPECT_EQ(curve.weights, (std::vector<qint64>{157, 156, 155, 154, 153, 152, 151, 150}));
}

TEST(WeightCurveTest, ASingleEntryStandsInTheMiddle) {
    const WeightCurve curve = WeightCurve::Of({{150, First}}, {150, 150});
    EXPECT_EQ(curve.points, (std::vector<PlotPoint>{{FirstMiddle + 4100, 5310, 150}}));
    EXPECT_EQ(curve.dates.size(), 1U);
}

TEST(WeightCurveTest, TheAxesAloneHaveNeitherEntriesNorALine) {
    const WeightCurve axes = Curve().AxesAlone();
    EXPECT_EQ(axes.dates, Curve().dates);
    EXPECT_EQ(axes.weights, Curve().weights);
    EXPECT_TRUE(axes.points.empty());
    EXPECT_EQ(axes.Summary(), QString());
    EXPECT_EQ(WeightCurve().AxesAlone(), WeightCurve());
}

TEST(WeightCurveTest, TheSummaryListsDaysAndWeights) {
    EXPECT_EQ(Curve().Summary(), "4/3/2002 150 lbs, 4/5/2002 153.25 lbs, 4/7/2002 157 lbs");
    WeightCurve empty;
    empty.noData = true;
    EXPECT_EQ(empty.Summary(), "No weight data To chart");
}

TEST(WeightCurveTest, OnTheScreenThereIsNoMean) {
    EXPECT_TRUE(Curve().mean.empty());
}

TEST(WeightCurveTest, TheMeanOfADayIsThatOfTheSevenDaysUpToIt) {
    const WeightCurve curve = WeightCurve::WithMean(
        {{150, First}, {156, First.addDays(6)}, {158, First.addDays(7)}, {151, First.addDays(30)}});
    ASSERT_EQ(curve.mean.size(), 4U);
    EXPECT_EQ(curve.mean[0].weight, 150);
    EXPECT_EQ(curve.mean[1].weight, 153);
    EXPECT_EQ(curve.mean[2].weight, 157);
    EXPECT_EQ(curve.mean[3].weight, 151);
    for (size_t i = 0; i < curve.mean.size(); ++i)
        EXPECT_EQ(curve.mean[i].x, curve.points[i].x);
}

TEST(WeightCurveTest, AMeanKeepsNothingOfWeightsBeforeItsSevenDays) {
    const WeightCurve curve = WeightCurve::WithMean(
        {{150.8, First}, {150.9, First.addDays(7)}, {156.5, First.addDays(9)}});
    EXPECT_EQ(curve.weights[4], 153);
    EXPECT_EQ(curve.mean[2].y, 2858); // of 153.7: 3330 - 675 * .7 = 2857.5
}

TEST(WeightCurveTest, OnAPageEveryWeightStandsBetweenTheLabels) {
    for (const double range : {0.0, 0.3, 1.0, 3.9, 7.0, 10.0, 24.5, 300.0})
        for (const double least : {149.6, 150.0, 150.4}) {
            const WeightCurve curve =
                WeightCurve::WithMean({{least, First}, {least + range, First.addDays(9)}});
            EXPECT_LE(double(curve.weights.back()), least);
            EXPECT_GE(double(curve.weights.front()), least + range);
            EXPECT_GE(curve.points[0].y, curve.points[1].y);
        }
}

TEST(WeightCurveTest, OnAPageTheLabelsAreWholePoundsAndAsCloseAsTheWeightsAllow) {
    const auto highest = [](double range) {
        return WeightCurve::WithMean({{150, First}, {150 + range, First.addDays(9)}})
            .weights.front();
    };
    EXPECT_EQ(highest(7), 157);
    EXPECT_EQ(highest(7.5), 164);
    EXPECT_EQ(highest(14), 164);
    EXPECT_EQ(highest(15), 171);
    EXPECT_EQ(highest(28), 178);
}

class WeightCurvePaintingTest : public HalvaneTest {
protected:
    static QImage Painted(const WeightCurve& curve, QPoint origin = {}) {
        QImage page(800, 500, QImage::Format_RGB32);
        page.fill(Qt::green);
        QPainter painter(&page);
        painter.translate(origin);
        WeightCurvePainting::Paint(painter, curve, QSize(716, 400));
        return page;
    }
};

TEST_F(WeightCurvePaintingTest, AnyPainterGetsAxesLabelsAndLineWithoutAWindow) {
    const QImage page = Painted(Curve());
    EXPECT_EQ(page.pixel(0, 0), TheStyle().frame.rgb());
    EXPECT_EQ(page.pixel(FirstMiddle / 15, 300), TheStyle().gridDark.rgb());
    EXPECT_NE(page, Painted(Curve().AxesAlone()));
    EXPECT_NE(Painted(Curve().AxesAlone()), Painted(WeightCurve()));
    EXPECT_EQ(page.pixel(716, 100), qRgb(0, 255, 0));
    EXPECT_EQ(page.pixel(100, 400), qRgb(0, 255, 0));
}

TEST_F(WeightCurvePaintingTest, ThePictureStandsAtThePaintersOrigin) {
    const QRect place(0, 0, 716, 400);
    EXPECT_EQ(Painted(Curve(), QPoint(40, 60)).copy(place.translated(40, 60)),
              Painted(Curve()).copy(place));
}
