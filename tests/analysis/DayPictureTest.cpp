#include "analysis/charts/DayPicture.h"

#include "AnalysisTest.h"
#include "analysis/DayFigures.h"
#include "analysis/LoggedSums.h"
#include "analysis/ui/ucDaily.h"
#include "drawing/Style.h"
#include "model/User.h"

#include <QPainter>

namespace {

const QDate Day(2002, 4, 3);

class DayPictureTest : public AnalysisTest {
protected:
    void ShowDay() {
        panel.show();
        panel.setDate(Day);
        const std::optional<Nuts> sums = LoggedSums::OfDay(Day);
        figures = DayFigures(sums.value_or(Nuts()), User::Current().RDIs);
    }
    /// The rows of the panel, without its header and its frame.
    QImage Rows() {
        const QPoint corner = Find(&panel, "picLabels")->pos();
        return Grab(&panel).copy(QRect(corner, DayPicture(panel.width()).Size()));
    }
    QImage Painted(void (DayPicture::*paint)(QPainter&, const DayFigures&) const) const {
        const DayPicture picture(panel.width());
        QImage page(picture.Size(), QImage::Format_RGB32);
        QPainter painter(&page);
        (picture.*paint)(painter, figures);
        return page;
    }

    ucDaily panel;
    DayFigures figures;
};

} // namespace

TEST_F(DayPictureTest, BarsOnAnyPainterEqualThoseOfThePanel) {
    Eat({{"Calories", 1500}, {"Iron", 800}, {"Zinc", 12.34}, {"VitaminA", 100}}, Day);
    ShowDay();
    EXPECT_EQ(Painted(&DayPicture::PaintBars), Rows());
}

TEST_F(DayPictureTest, APageHasLightBarsAfterADarkScreenHasShownDarkOnes) {
    Eat({{"Calories", 1500}}, Day);
    ShowDay();
    const QImage light = Painted(&DayPicture::PaintBars);
    UseStyle(StyleKind::Dark);
    EXPECT_NE(Painted(&DayPicture::PaintBars), light);
    UseStyle(StyleKind::Light);
    EXPECT_EQ(Painted(&DayPicture::PaintBars), light);
}

TEST_F(DayPictureTest, ValuesOnAnyPainterEqualThoseOfThePanel) {
    Eat({{"Calories", 12345}, {"Iron", 800}, {"Zinc", 12.34}}, Day);
    ShowDay();
    panel.Toggle(1);
    EXPECT_EQ(Painted(&DayPicture::PaintValues), Rows());
}

TEST_F(DayPictureTest, AnEmptyDayEqualsThePanelToo) {
    ShowDay();
    EXPECT_EQ(Painted(&DayPicture::PaintBars), Rows());
    panel.Toggle(1);
    EXPECT_EQ(Painted(&DayPicture::PaintValues), Rows());
}
