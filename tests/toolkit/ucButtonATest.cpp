#include "toolkit/Input.h"

#include "drawing/Contrast.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

class ucButtonATest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        button.Set_img_NORM(QStringLiteral("trash"));
        button.Set_img_ROLL(QStringLiteral("trash"));
        button.Set_img_DOWN(QStringLiteral("trash"));
        button.show();
    }

    ucButtonA button;
    QSignalSpy clicks{&button, &ucButtonA::Click};
    const QPointF inside{12, 12};
    const QPointF outside{40, 12};
};

} // namespace

TEST_F(ucButtonATest, SettingThePictureAtRestShowsItAndSizesTheControl) {
    SendMove(&button, inside);
    button.resize(70, 70);
    button.setProperty("img_NORM", "apple");
    EXPECT_EQ(button.Shown(), "img_NORM");
    EXPECT_EQ(button.size(), QSize(24, 24));
    button.SetPictureSize({16, 16});
    EXPECT_EQ(button.size(), QSize(16, 16));
}

TEST_F(ucButtonATest, ShowsThePictureOfTheMouseStep) {
    SendMove(&button, inside);
    EXPECT_EQ(button.Shown(), "img_ROLL");
    SendPress(&button, inside);
    EXPECT_EQ(button.Shown(), "img_DOWN");
    SendMove(&button, outside, Qt::LeftButton);
    EXPECT_EQ(button.Shown(), "img_NORM");
    SendMove(&button, inside, Qt::LeftButton);
    EXPECT_EQ(button.Shown(), "img_DOWN");
    SendRelease(&button, inside);
    EXPECT_EQ(button.Shown(), "img_NORM");
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucButtonATest, ReleasedOutsideItDoesNotClick) {
    SendPress(&button, inside);
    SendMove(&button, outside, Qt::LeftButton);
    SendRelease(&button, outside);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(button.Shown(), "img_NORM");
}

TEST_F(ucButtonATest, AMoveOverTheLitButtonOnlyRaisesTheEvent) {
    SendMove(&button, inside);
    QApplication::processEvents();
    QSignalSpy moves(&button, &ucButtonA::MouseMove);
    EventCount paints(&button, QEvent::Paint);
    SendMove(&button, QPointF(5, 5));
    QApplication::processEvents();
    EXPECT_EQ(moves.count(), 1);
    EXPECT_EQ(paints.Count(), 0);
}

TEST_F(ucButtonATest, ResetAndLeavingTakeTheLightOff) {
    SendMove(&button, inside);
    button.Reset();
    EXPECT_EQ(button.Shown(), "img_NORM");
    SendMove(&button, inside);
    SendLeave(&button);
    EXPECT_EQ(button.Shown(), "img_NORM");
}

TEST_F(ucButtonATest, ItIsAtRestAgainBeforeTheClickIsRaised) {
    QString shownAtClick;
    QObject::connect(&button, &ucButtonA::Click, [&] { shownAtClick = button.Shown(); });
    SendMove(&button, inside);
    Click(&button);
    EXPECT_EQ(shownAtClick, "img_NORM");
}

TEST_F(ucButtonATest, ThreeTintsOfOnePictureDiffer) {
    button.SetPictures(QStringLiteral("trash"), QStringLiteral("Remove"));
    const QImage rest = Grab(&button);
    SendMove(&button, inside);
    const QImage roll = Grab(&button);
    SendPress(&button, inside);
    const QImage down = Grab(&button);
    EXPECT_NE(rest, roll);
    EXPECT_NE(roll, down);
    EXPECT_NE(rest, down);
}

TEST_F(ucButtonATest, ToolTipIsItsAccessibleName) {
    EXPECT_EQ(ucButtonA().property("acToolTip").toString(), "");
    button.setProperty("acToolTip", "Examine Food");
    EXPECT_EQ(button.toolTip(), "Examine Food");
    EXPECT_EQ(button.accessibleName(), "Examine Food");
}

TEST_F(ucButtonATest, DisabledItCannotBeClickedLooksGreyAndStillShowsItsTip) {
    button.SetPictures(QStringLiteral("trash"), QStringLiteral("Not there yet"));
    const QImage enabled = Grab(&button);
    button.setEnabled(false);
    Click(&button);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_NE(Grab(&button), enabled);
    EventCount tips(&button, QEvent::ToolTip);
    QHelpEvent help(QEvent::ToolTip, {12, 12}, button.mapToGlobal(QPoint(12, 12)));
    EXPECT_TRUE(QApplication::sendEvent(&button, &help));
    EXPECT_TRUE(help.isAccepted());
}

TEST_F(ucButtonATest, InHighContrastAnEdgeTellsTheButtonUnderThePointerAndNotOnlyItsHue) {
    UseStyle(StyleKind::HighContrast);
    const Style& style = TheStyle();
    const auto edge = [this] { return Grab(&button).pixelColor(12, 0); };
    EXPECT_NE(edge(), style.button[1].edge);
    SendMove(&button, inside);
    const QImage lit = Grab(&button);
    EXPECT_EQ(edge(), style.button[1].edge);
    for (const QColor& ground : {style.canvas, style.window.from, style.chosenRow})
        EXPECT_GE(qMax(Contrast(edge(), ground), Contrast(style.button[1].ground.from, ground)), 3);
    SendPress(&button, inside);
    EXPECT_EQ(edge(), style.button[2].edge);
    SendLeave(&button);
    button.Reset();
    button.setFocus(Qt::TabFocusReason);
    const QImage focused = Grab(&button);
    EXPECT_NE(focused, lit);
    SendMove(&button, inside);
    EXPECT_NE(Grab(&button), focused);
    UseStyle(StyleKind::Light);
}

TEST_F(ucButtonATest, InTheOtherStylesOnlyThePictureOfAButtonWithoutAnEdgeChanges) {
    for (const StyleKind kind : {StyleKind::Dark, StyleKind::Light}) {
        UseStyle(kind);
        button.Reset();
        const QColor rest = Grab(&button).pixelColor(12, 0);
        SendMove(&button, inside);
        EXPECT_EQ(Grab(&button).pixelColor(12, 0), rest);
    }
}

TEST_F(ucButtonATest, ANavigationButtonIsATileWithItsCaption) {
    button.SetCaptionBelow(QStringLiteral("Daily"));
    EXPECT_EQ(button.size(), QSize(84, 66));
    const auto at = button.layoutRects();
    EXPECT_GT(at.caption.top(), at.imgButton.bottom());
    EXPECT_EQ(button.accessibleName(), "Daily");
    SendPress(&button, QPointF(80, 60));
    SendRelease(&button, QPointF(80, 60));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucButtonATest, SpaceAndReturnPressIt) {
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 2);
}
