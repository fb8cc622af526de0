#include "AnalysisTest.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucDaily.h"
#include "drawing/Style.h"

#include <QFontDatabase>

namespace {

const QDate Day(2002, 4, 3);

/// The charts in fonts whose points and letters have other widths than the delivered font.
class OtherFontsTest : public AnalysisTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        AnalysisTest::SetUp();
        ASSERT_TRUE(QFontDatabase::hasFamily(GetParam())) << GetParam();
        SetFontFamily(GetParam());
        Eat({{"Calories", 99999}, {"VitaminA", 999999}, {"Iron", 12.34}, {"Zinc", 1}}, Day);
        Weigh(180, Day);
    }
    void TearDown() override {
        SetFontFamily("Inter");
        AnalysisTest::TearDown();
    }
    static ChartLabel* Value(const QWidget& chart, int row) {
        return Find<ChartLabel>(&chart, QStringLiteral("lblVal%1").arg(row));
    }
    /// Where the figure begins, after the visible points.
    static double Column(const ChartLabel& value) {
        QString figure = value.Caption();
        figure.remove(0, figure.lastIndexOf("..") + 2);
        return value.sizeHint().width() - value.fontMetrics().horizontalAdvance(figure);
    }
    static void ExpectOneColumn(const QWidget& chart, std::initializer_list<int> rows) {
        for (const int row : rows)
            EXPECT_NEAR(Column(*Value(chart, row)), Column(*Value(chart, 1)), 2) << row;
    }
};

} // namespace

TEST_P(OtherFontsTest, NoValueOfTheReportIsCut) {
    ucBarChart chart;
    chart.updateBars(Day, Day);
    for (int row = 1; row <= 31; ++row)
        EXPECT_LE(Value(chart, row)->sizeHint().width(), Value(chart, row)->width()) << row;
    ExpectOneColumn(chart, {2, 15, 31});
}

TEST_P(OtherFontsTest, NoValueOfTheDayIsCut) {
    ucDaily panel;
    panel.setDate(Day);
    panel.Toggle(1);
    const QWidget* view = Find(&panel, "picVals");
    for (int row = 1; row <= 28; ++row) {
        EXPECT_LE(Value(panel, row)->geometry().right(), view->width()) << row;
        EXPECT_EQ(Value(panel, row)->size(), Value(panel, row)->sizeHint()) << row;
    }
    ExpectOneColumn(panel, {2, 14, 28});
}

TEST_P(OtherFontsTest, TheGreatestFigureIsNotCut) {
    Eat({{"Calories", 2147000000}, {"VitaminA", 1e300}}, Day.addDays(1));
    ucDaily panel;
    panel.setDate(Day.addDays(1));
    panel.Toggle(1);
    EXPECT_LE(Value(panel, 1)->geometry().right(), Find(&panel, "picVals")->width());
    ucBarChart chart;
    Weigh(180, Day.addDays(1));
    chart.updateBars(Day.addDays(1), Day.addDays(1));
    EXPECT_LE(Value(chart, 1)->sizeHint().width(), Value(chart, 1)->width());
}

INSTANTIATE_TEST_SUITE_P(Families, OtherFontsTest,
                         ::testing::Values("Inter", "DejaVu Sans", "DejaVu Serif",
                                           "DejaVu Sans Mono", "Liberation Sans",
                                           "Liberation Mono"));
