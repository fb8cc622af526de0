#include "toolkit/Input.h"

#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucHeader.h"
#include "toolkit/ucStrip.h"
#include "toolkit/ucTextRaised.h"

#include <QSignalSpy>
#include <QTest>

using PanelTest = HalvaneTest;

/// Leftmost and rightmost column in which the panel differs from the same panel without caption.
template <class Panel> static QPair<int, int> Inked(Panel& panel) {
    const QImage full = Grab(&panel);
    const QString caption = panel.Caption();
    panel.SetCaption(QString());
    const QImage bare = Grab(&panel);
    panel.SetCaption(caption);
    QPair<int, int> span{full.width(), -1};
    for (int x = 0; x < full.width(); ++x)
        for (int y = 0; y < full.height(); ++y)
            if (full.pixel(x, y) != bare.pixel(x, y))
                span = {qMin(span.first, x), x};
    return span;
}

static bool Holds(const QImage& image, const QColor& colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour)
                return true;
    return false;
}

TEST_F(PanelTest, EveryPanelStartsWithCaptionCustomAndRepaintsOnSettingIt) {
    ucHeader header;
    ucStrip strip;
    ucTextRaised raised;
    for (PaintedPanel* panel : std::initializer_list<PaintedPanel*>{&header, &strip, &raised}) {
        EXPECT_EQ(panel->Caption(), "Custom");
        const QImage before = Grab(panel);
        panel->setProperty("Caption", "Other");
        EXPECT_NE(Grab(panel), before);
    }
}

TEST_F(PanelTest, AHeaderCentresItsCaptionUntilItIsToldNotTo) {
    ucHeader header;
    header.resize(300, 24);
    header.SetCaption(QStringLiteral("Percent RDI"));
    EXPECT_TRUE(header.property("CenterAlignText").toBool());
    const auto centred = Inked(header);
    EXPECT_NEAR(centred.first, 299 - centred.second, 3);
    header.setProperty("CenterAlignText", false);
    EXPECT_NEAR(Inked(header).first, 8, 3);
}

TEST_F(PanelTest, AHeadersMiddleIsOneColumnStretched) {
    ucHeader header;
    header.resize(120, 24);
    header.SetCaption(QString());
    const QImage drawn = Grab(&header);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 120; ++x)
            ASSERT_EQ(drawn.pixel(x, y), drawn.pixel(60, y));
}

TEST_F(PanelTest, AStripPrintsAtTheLeft) {
    ucStrip strip;
    strip.resize(300, 24);
    strip.SetCaption(QStringLiteral("Values"));
    EXPECT_LT(Inked(strip).second, 150);
}

TEST_F(PanelTest, PanelsPassTheirClicksAndMovesOn) {
    ucTextRaised raised;
    raised.resize(100, 30);
    QSignalSpy clicks(&raised, &ucTextRaised::Click);
    QSignalSpy moves(&raised, &ucTextRaised::MouseMove);
    Click(&raised);
    SendMove(&raised, QPointF(5, 5));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_GE(moves.count(), 1);
}

TEST_F(PanelTest, RaisedTextIsWhiteOverAShadowToTheRightAndBelow) {
    ucTextRaised raised;
    raised.resize(200, 50);
    raised.SetCaption(QStringLiteral("Halvane"));
    const QImage drawn = Grab(&raised);
    EXPECT_TRUE(Holds(drawn, Qt::white));
    EXPECT_TRUE(Holds(drawn, QColor(10, 75, 175)));
    const auto span = Inked(raised);
    EXPECT_NEAR(span.first + 2, 199 - span.second, 6);
}

TEST_F(PanelTest, RaisedTextLiesOverItsPicture) {
    ucTextRaised raised;
    raised.resize(200, 50);
    EXPECT_TRUE(raised.Picture().isNull());
    QPixmap picture(200, 50);
    picture.fill(QColor(1, 90, 2));
    raised.SetPicture(picture);
    EXPECT_EQ(Grab(&raised).pixelColor(0, 0), QColor(1, 90, 2));
}

TEST_F(PanelTest, ABoxFramesItsWholeSurfaceInTheFrameBrown) {
    ucBox box(QStringLiteral("Tip of the day"));
    box.resize(200, 100);
    const QImage drawn = Grab(&box);
    const QColor frame(180, 105, 12);
    for (const QPoint at : {QPoint(100, 0), QPoint(100, 99), QPoint(0, 50), QPoint(199, 50)})
        EXPECT_EQ(drawn.pixelColor(at), frame);
    EXPECT_EQ(drawn.pixelColor(100, 50), TheStyle().paper);
}

TEST_F(PanelTest, ABoxesHeaderFollowsItsWidthAndTakesItsCaptionAndFont) {
    ucBox box;
    box.resize(240, 100);
    box.show();
    box.setProperty("Caption", "Food Intake");
    EXPECT_EQ(box.Header()->Caption(), "Food Intake");
    EXPECT_EQ(box.Header()->geometry(), QRect(1, 1, 238, 24));
    box.resize(300, 120);
    EXPECT_EQ(box.Header()->width(), 298);
    box.SetFont(TheStyle().small);
    EXPECT_EQ(box.Header()->font().pointSizeF(), 8);
}

TEST_F(PanelTest, ABoxesContentsStandInsideTheFrameBelowTheHeader) {
    ucBox box(QStringLiteral("Tip"));
    box.resize(200, 100);
    box.show();
    EXPECT_EQ(box.Inner(), QRect(1, 25, 198, 74));
    QSignalSpy changes(&box, &ucBox::InnerChanged);
    box.resize(200, 120);
    EXPECT_EQ(changes.count(), 1);
    box.SetCaption(QString());
    EXPECT_EQ(box.Inner(), QRect(1, 1, 198, 118));
}

TEST_F(PanelTest, ABoxRaisesMovesOverItselfAndItsHeader) {
    ucBox box(QStringLiteral("Tip"));
    box.resize(200, 100);
    box.show();
    QSignalSpy moves(&box, &ucBox::MouseMove);
    SendMove(&box, QPointF(50, 50));
    SendMove(box.Header(), QPointF(50, 5));
    EXPECT_EQ(moves.count(), 2);
}

TEST_F(PanelTest, ABoxPassesClicksOnItselfAndItsHeaderOn) {
    ucBox box(QStringLiteral("Tip"));
    box.resize(200, 100);
    box.show();
    QSignalSpy clicks(&box, &ucBox::Click);
    Click(&box, QPoint(50, 60));
    Click(box.Header(), QPoint(50, 5));
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(PanelTest, ABoxKeepsItsDrawingPlace) {
    ucBox box;
    EXPECT_EQ(box.property("CurrentX").toDouble(), 0);
    box.setProperty("CurrentX", 120.5);
    box.setProperty("CurrentY", 30);
    EXPECT_EQ(box.property("CurrentX").toDouble(), 120.5);
    EXPECT_EQ(box.property("CurrentY").toDouble(), 30);
}
