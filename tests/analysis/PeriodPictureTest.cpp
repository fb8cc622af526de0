#include "analysis/charts/PeriodPicture.h"

#include "AnalysisTest.h"
#include "analysis/LoggedSums.h"
#include "analysis/PeriodFigures.h"
#include "analysis/ui/ucBarChart.h"
#include "model/User.h"

#include <QPainter>

namespace {

const QDate Day(2002, 4, 3);

class PeriodPictureTest : public AnalysisTest {
protected:
    void SetUp() override {
        AnalysisTest::SetUp();
        Eat({{"Calories", 1500}, {"Iron", 800}, {"Zinc", 12.34}, {"Water", 1}}, Day);
        Weigh(180, Day);
        figures = PeriodFigures(*LoggedSums::OfPeriod({Day, Day}), 1, User::Current().RDIs);
        chart.show();
        chart.updateBars(Day, Day);
    }
    /// Without the header, which is a control of its own.
    QImage BelowHead(const QImage& picture) const {
        const int top = PeriodPicture(chart.size()).HeadHeight();
        return picture.copy(0, top, chart.width(), chart.height() - top);
    }
    QImage Painted(void (PeriodPicture::*paint)(QPainter&, const PeriodFigures&) const) const {
        QImage page(chart.size(), QImage::Format_RGB32);
        QPainter painter(&page);
        (PeriodPicture(chart.size()).*paint)(painter, figures);
        return page;
    }

    PeriodFigures figures;
    ucBarChart chart;
};

} // namespace

TEST_F(PeriodPictureTest, BarsOnAnyPainterEqualThoseOfTheChart) {
    EXPECT_EQ(BelowHead(Painted(&PeriodPicture::PaintBars)), BelowHead(Grab(&chart)));
}

TEST_F(PeriodPictureTest, ValuesOnAnyPainterEqualThoseOfTheChart) {
    chart.Toggle(1);
    EXPECT_EQ(BelowHead(Painted(&PeriodPicture::PaintValues)), BelowHead(Grab(&chart)));
}

TEST_F(PeriodPictureTest, WithoutDataOnlyTheGridIsPainted) {
    figures = PeriodFigures();
    QImage ground(chart.size(), QImage::Format_RGB32);
    QPainter painter(&ground);
    PeriodPicture(chart.size()).PaintGround(painter);
    painter.end();
    EXPECT_EQ(Painted(&PeriodPicture::PaintBars), ground);
}
