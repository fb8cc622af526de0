#include "analysis/charts/Pie.h"
#include "analysis/ui/PieChart.h"
#include "drawing/Contrast.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucAALBL.h"

#include <QPainter>
#include <QtMath>

namespace {

class PieTest : public HalvaneTest {
protected:
    static PieForm Small() {
        PieForm form;
        form.size = QSize(108, 108);
        form.centre = QPointF(54, 54);
        form.radius = 48;
        form.noDataPlace = QPointF(12, 35);
        form.overlayWithoutData = true;
        form.noDataCaptions = {"Total Fat --", "Protein --", "Carbs. --"};
        form.ground = TheStyle().paper;
        return form;
    }

    /// The pixel at that percent of the circle and at that part of the radius.
    static QRgb At(const QImage& picture, const PieForm& form, double percent, double part = 0.6) {
        const double angle = percent * 6.28318530718 / 100;
        const QPointF place = form.centre + QPointF(qCos(angle), -qSin(angle)) * form.radius * part;
        return picture.pixel(qFloor(place.x()), qFloor(place.y())) | 0xff000000;
    }

    static QRgb Laid(QRgb over, QRgb ground) {
        const auto mix = [](int a, int b) { return (a * 153 + b * 102 + 127) / 255; };
        return qRgb(mix(qRed(over), qRed(ground)), mix(qGreen(over), qGreen(ground)),
                    mix(qBlue(over), qBlue(ground)));
    }

    static int PixelsUnlike(const QImage& picture, const QRect& place, QRgb ground) {
        int count = 0;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                count += (picture.pixel(x, y) | 0xff000000) != ground;
        return count;
    }

    static std::array<QString, 3> Captions(const char* fat, const char* protein,
                                           const char* carbs) {
        return {QString::fromLatin1(fat), QString::fromLatin1(protein), QString::fromLatin1(carbs)};
    }

    const QRgb paper = TheStyle().paper.rgb();
    const QRgb red = qRgb(255, 30, 30);
    const QRgb orange = qRgb(255, 133, 0);
    const QRgb green = qRgb(56, 250, 59);
};

TEST_F(PieTest, SectorsRunCounterClockwiseFromTheRight) {
    Pie pie(Small());
    pie.Show({0.25, 0.25, 0.5});
    const QImage temp = pie.temp();
    EXPECT_EQ(At(temp, Small(), 12), red);
    EXPECT_EQ(At(temp, Small(), 24), red);
    EXPECT_EQ(At(temp, Small(), 26), orange);
    EXPECT_EQ(At(temp, Small(), 49), orange);
    EXPECT_EQ(At(temp, Small(), 51), green);
    EXPECT_EQ(At(temp, Small(), 99), green);
}

TEST_F(PieTest, TheCircleFillsItsRadiusAndNoMore) {
    Pie pie(Small());
    pie.Show({1, 1, 1});
    const QImage temp = pie.temp();
    for (int percent = 1; percent < 100; percent += 4) {
        EXPECT_NE(At(temp, Small(), percent, 46.0 / 48), paper) << percent;
        EXPECT_EQ(At(temp, Small(), percent, 51.0 / 48), paper) << percent;
    }
}

TEST_F(PieTest, ThePieIsBlendedOverThePictureWithAlpha153) {
    Pie pie(Small());
    pie.Show({0.25, 0.25, 0.5});
    const QImage shown = pie.picPIE();
    EXPECT_EQ(At(shown, Small(), 12), Laid(red, paper));
    EXPECT_EQ(At(shown, Small(), 37), Laid(orange, paper));
    EXPECT_EQ(At(shown, Small(), 75), Laid(green, paper));
    EXPECT_EQ(shown.pixel(2, 2) | 0xff000000, paper);
}

TEST_F(PieTest, WhatIsPaintedHasALineBetweenTheSectorsAndAroundThem) {
    Pie pie(Small());
    pie.Show({0.25, 0.25, 0.5});
    QImage page(Small().size, QImage::Format_RGB32);
    QPainter painter(&page);
    pie.Paint(painter);
    painter.end();
    EXPECT_EQ(At(page, Small(), 12), Laid(red, paper));
    const auto darkestAround = [&](double percent, double part) {
        int darkest = 255;
        for (const double shift : {-0.4, 0.0, 0.4})
            darkest = qMin(darkest, qGray(At(page, Small(), percent + shift, part)));
        return darkest;
    };
    for (const double border : {25.0, 50.0})
        EXPECT_LT(darkestAround(border, 0.6), 140) << border;
    for (const double within : {12.0, 37.0, 75.0})
        EXPECT_LT(darkestAround(within, 47.9 / 48), 170) << within;
}

/// In the light style the colours are fixed.
TEST_F(PieTest, InDarkStylesSectorsAreSeenOnTheirGroundAndBesideEachOther) {
    for (const StyleKind kind : {StyleKind::Dark, StyleKind::HighContrast}) {
        UseStyle(kind);
        for (const QColor& sector : Pie(Small()).ShownColours()) {
            EXPECT_GE(Contrast(sector, TheStyle().paper), 3) << sector.name().toStdString();
            EXPECT_GE(Contrast(sector, TheStyle().pieEdge), 3) << sector.name().toStdString();
        }
    }
    UseStyle(StyleKind::Light);
}

TEST_F(PieTest, InHighContrastEachSectorIsLighterThanTheOneBeforeAndHasALightOutline) {
    UseStyle(StyleKind::HighContrast);
    const auto [fat, protein, carbs] = Pie(Small()).ShownColours();
    EXPECT_GE(Contrast(protein, fat), 1.4);
    EXPECT_GE(Contrast(carbs, protein), 1.4);
    EXPECT_GE(Contrast(TheStyle().pieEdge, TheStyle().paper), 4.5);
    UseStyle(StyleKind::Light);
}

TEST_F(PieTest, AFurtherOverlayBlendsAgain) {
    Pie pie(Small());
    pie.Show({0.25, 0.25, 0.5});
    pie.picPIE();
    pie.AddOverLay();
    EXPECT_EQ(At(pie.picPIE(), Small(), 12), Laid(red, Laid(red, paper)));
}

TEST_F(PieTest, TheLegendHasTheColoursOfTheShownSectors) {
    const Pie pie(Small());
    const auto colours = pie.ShownColours();
    EXPECT_EQ(colours[0].rgb(), Laid(red, paper));
    EXPECT_EQ(colours[1].rgb(), Laid(orange, paper));
    EXPECT_EQ(colours[2].rgb(), Laid(green, paper));
}

TEST_F(PieTest, PureFatLeavesSliversForTheOthers) {
    Pie pie(Small());
    pie.Show({1, 0, 0});
    EXPECT_EQ(pie.Captions(), Captions("Fat 100%", "Protein 0%", "Carbs. 0%"));
    EXPECT_EQ(At(pie.temp(), Small(), 50), red);
    const QRgb sliver = At(pie.temp(), Small(), 99.9, 0.95);
    EXPECT_GT(qGreen(sliver), qRed(sliver));
}

TEST_F(PieTest, WithoutAnyShareNoSectorIsDrawnAndCaptionsStay) {
    Pie pie(Small());
    pie.Show({0.5, 0.25, 0.25});
    pie.Show({0, 0, 0});
    EXPECT_EQ(pie.Captions(), Captions("Fat 50%", "Protein 25%", "Carbs. 25%"));
    EXPECT_EQ(PixelsUnlike(pie.temp(), QRect(0, 0, 108, 108), paper), 0);
    EXPECT_EQ(PixelsUnlike(pie.picPIE(), QRect(0, 0, 108, 108), paper), 0);
    EXPECT_EQ(pie.Summary(), QString());
}

TEST_F(PieTest, InfiniteSharesDrawNothingAndDoNotFail) {
    Pie pie(Small());
    pie.Show({qInf(), 1, 1});
    EXPECT_EQ(pie.picPIE().size(), QSize(108, 108));
}

TEST_F(PieTest, NoDataIsPrintedAtItsPlaceUnderABlankPie) {
    Pie pie(Small());
    pie.Show({1, 1, 1});
    pie.Show(EnergyShares::NoData());
    EXPECT_EQ(pie.Captions(), Captions("Total Fat --", "Protein --", "Carbs. --"));
    EXPECT_EQ(pie.Summary(), QStringLiteral("No data to chart"));
    EXPECT_EQ(PixelsUnlike(pie.temp(), QRect(0, 0, 108, 108), paper), 0);
    const QImage shown = pie.picPIE();
    EXPECT_GT(PixelsUnlike(shown, QRect(12, 35, 90, 16), paper), 50);
    EXPECT_EQ(PixelsUnlike(shown, QRect(0, 0, 108, 35), paper), 0);
    EXPECT_EQ(PixelsUnlike(shown, QRect(0, 55, 108, 53), paper), 0);
    EXPECT_EQ(PixelsUnlike(shown, QRect(0, 0, 12, 108), paper), 0);
    EXPECT_EQ(PixelsUnlike(shown, QRect(104, 0, 4, 108), paper), 0);
}

TEST_F(PieTest, TheFormDecidesWhetherTheOverlayCoversTheNotice) {
    const auto darkest = [](const QImage& picture) {
        int least = 255;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                least = qMin(least, qGray(picture.pixel(x, y)));
        return least;
    };
    PieForm plain = Small();
    plain.overlayWithoutData = false;
    Pie withOverlay(Small());
    withOverlay.Show(EnergyShares::NoData());
    Pie without(plain);
    without.Show(EnergyShares::NoData());
    EXPECT_GE(darkest(withOverlay.picPIE()), 145);
    EXPECT_LT(darkest(without.picPIE()), 100);
}

TEST_F(PieTest, NoDataWithoutAPlaceIsCentred) {
    PieForm form = Small();
    form.noDataPlace.reset();
    Pie pie(form);
    pie.Show(EnergyShares::NoData());
    const QImage shown = pie.picPIE();
    EXPECT_GT(PixelsUnlike(shown, QRect(8, 44, 92, 20), paper), 50);
    EXPECT_EQ(PixelsUnlike(shown, QRect(0, 0, 108, 44), paper), 0);
    EXPECT_EQ(PixelsUnlike(shown, QRect(0, 64, 108, 44), paper), 0);
}

TEST_F(PieTest, SizeCentreAndRadiusComeFromTheForm) {
    PieForm form = Small();
    form.size = QSize(252, 242);
    form.centre = QPointF(126, 121);
    form.radius = 112;
    Pie pie(form);
    pie.Show({1, 1, 2});
    EXPECT_EQ(pie.picPIE().size(), QSize(252, 242));
    EXPECT_EQ(At(pie.temp(), form, 12, 0.95), red);
    EXPECT_EQ(At(pie.temp(), form, 75, 0.95), green);
}

TEST_F(PieTest, ADenserScreenGetsADenserPicture) {
    Pie pie(Small());
    pie.Show({1, 1, 2});
    const QImage shown = pie.picPIE(2);
    EXPECT_EQ(shown.size(), QSize(216, 216));
    EXPECT_EQ(shown.pixel(108 + 20, 108 - 20) | 0xff000000, Laid(red, paper));
}

TEST_F(PieTest, AnyPainterGetsThePieAtItsOrigin) {
    Pie pie(Small());
    pie.Show({1, 1, 2});
    QImage page(200, 200, QImage::Format_RGB32);
    page.fill(Qt::blue);
    QPainter painter(&page);
    painter.translate(50, 60);
    pie.Paint(painter);
    painter.end();
    const QImage painted = page.copy(50, 60, 108, 108);
    for (const double percent : {12.0, 37.0, 75.0})
        EXPECT_EQ(At(painted, Small(), percent), At(pie.picPIE(), Small(), percent));
    EXPECT_EQ(painted.pixel(0, 0), pie.picPIE().pixel(0, 0));
    EXPECT_EQ(painted.pixel(107, 107), pie.picPIE().pixel(107, 107));
    EXPECT_EQ(page.pixel(49, 100), qRgb(0, 0, 255));
}

TEST_F(PieTest, BlendMixesByAlphaOf255) {
    QImage onto(3, 2, QImage::Format_RGB32);
    QImage over(3, 2, QImage::Format_RGB32);
    onto.fill(qRgb(0, 100, 255));
    over.fill(qRgb(255, 200, 0));
    ASSERT_TRUE(Pie::Blend(onto, over, 153));
    EXPECT_EQ(onto.pixel(2, 1), qRgb(153, 160, 102));
}

TEST_F(PieTest, BlendRefusesPicturesThatDoNotFit) {
    QImage onto(3, 2, QImage::Format_RGB32);
    onto.fill(qRgb(1, 2, 3));
    const QImage before = onto;
    EXPECT_FALSE(Pie::Blend(onto, QImage(2, 2, QImage::Format_RGB32), 153));
    EXPECT_FALSE(Pie::Blend(onto, QImage(3, 2, QImage::Format_Mono), 153));
    EXPECT_EQ(onto, before);
    QImage none;
    EXPECT_FALSE(Pie::Blend(none, QImage(), 153));
}

TEST_F(PieTest, TheChartStandsInTheMiddleWithASwatchBeforeEachLabel) {
    PieChart chart(Small());
    chart.resize(336, 420);
    chart.Show({0.5, 0.25, 0.25});
    chart.show();
    const QImage shown = Grab(&chart);
    const auto* picture = Find(&chart, QStringLiteral("picPIE"));
    EXPECT_EQ(picture->x(), (336 - 108) / 2);
    const std::array names{"aafat", "aaprotein", "aacarbs"};
    const std::array colours{red, orange, green};
    for (size_t i = 0; i < 3; ++i) {
        const auto* label = Find<ucAALBL>(&chart, QString::fromLatin1(names[i]));
        EXPECT_EQ(label->Caption(),
                  picture->accessibleDescription().split(QStringLiteral(", "))[int(i)]);
        EXPECT_GT(label->y(), picture->geometry().bottom());
        EXPECT_EQ(shown.pixel(label->x() - 14, label->geometry().center().y()),
                  Laid(colours[i], paper));
    }
}

} // namespace
