#include "toolkit/Input.h"

#include "support/HalvaneTest.h"
#include "toolkit/ucButton.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace {

class ucButtonTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        button.resize(100, 26);
        button.show();
    }

    QString Pictures() const {
        return button.PictureOn(0) + u' ' + button.PictureOn(1) + u' ' + button.PictureOn(2);
    }

    ucButton button{QStringLiteral("Done")};
    QSignalSpy clicks{&button, &ucButton::Click};
    const QPointF inside{50, 13};
    const QPointF outside{50, 40};
};

} // namespace

TEST_F(ucButtonTest, CaptionIsCustomUntilOneIsSet) {
    EXPECT_EQ(ucButton().property("Caption").toString(), "Custom");
    EXPECT_TRUE(ucButton().property("Enabled").toBool());
}

TEST_F(ucButtonTest, ShowsTheRSetAtRestAndTheNSetUnderThePointer) {
    EXPECT_EQ(button.State(), 1);
    EXPECT_EQ(Pictures(), "L_R M_R R_R");
    SendMove(&button, inside);
    EXPECT_EQ(button.State(), 2);
    EXPECT_EQ(Pictures(), "L_N M_N R_N");
    SendPress(&button, inside);
    EXPECT_EQ(button.State(), 3);
    EXPECT_EQ(Pictures(), "L_D M_D R_D");
    button.SetEnabled(false);
    EXPECT_EQ(button.State(), 4);
    EXPECT_EQ(Pictures(), "L_X M_X R_X");
}

TEST_F(ucButtonTest, PressAndReleaseInsideClicksOnceAndLeavesItLit) {
    SendPress(&button, inside);
    EXPECT_EQ(clicks.count(), 0);
    SendRelease(&button, inside);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(button.State(), 2);
}

TEST_F(ucButtonTest, DraggingOffAndReleasingGivesNoClickAndState1) {
    SendPress(&button, inside);
    SendMove(&button, outside, Qt::LeftButton);
    EXPECT_EQ(button.State(), 1);
    SendRelease(&button, outside);
    EXPECT_EQ(button.State(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucButtonTest, DraggingBackOnShowsItPressedAgain) {
    SendPress(&button, inside);
    SendMove(&button, outside, Qt::LeftButton);
    SendMove(&button, inside, Qt::LeftButton);
    EXPECT_EQ(button.State(), 3);
    SendRelease(&button, inside);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucButtonTest, EdgesAtZeroAreOutsideAndTheLastPixelsInside) {
    for (const QPointF edge : {QPointF(0, 13), QPointF(50, 0), QPointF(100, 13), QPointF(50, 26)})
        EXPECT_FALSE(button.IsInside(edge));
    for (const QPointF within : {QPointF(1, 1), QPointF(99, 25)})
        EXPECT_TRUE(button.IsInside(within));
}

TEST_F(ucButtonTest, EveryMoveRaisesMouseMoveInTwips) {
    QSignalSpy moves(&button, &ucButton::MouseMove);
    SendMove(&button, QPointF(10, 4));
    SendMove(&button, QPointF(10, 4));
    ASSERT_EQ(moves.count(), 2);
    EXPECT_EQ(moves[0], (QVariantList{0, 0, 150.0, 60.0}));
    SendMove(&button, QPointF(2, 2), Qt::LeftButton);
    EXPECT_EQ(moves[2], (QVariantList{1, 0, 30.0, 30.0}));
}

TEST_F(ucButtonTest, SettingEnabledTrueDoesNotLeaveState4ButResetDoes) {
    button.SetEnabled(false);
    button.SetEnabled(true);
    EXPECT_EQ(button.State(), 4);
    button.Reset();
    EXPECT_EQ(button.State(), 1);
}

TEST_F(ucButtonTest, ADisabledButtonThatIsResetStaysInState4) {
    button.SetEnabled(false);
    button.Reset();
    EXPECT_EQ(button.State(), 4);
}

TEST_F(ucButtonTest, ADisabledButtonStaysDisabledWhenShownOrResized) {
    button.SetEnabled(false);
    button.hide();
    button.show();
    EXPECT_EQ(button.State(), 4);
    button.resize(140, 26);
    EXPECT_EQ(button.State(), 4);
}

TEST_F(ucButtonTest, ADisabledButtonCannotBeClickedOrPressed) {
    button.SetEnabled(false);
    Click(&button);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(button.State(), 4);
}

TEST_F(ucButtonTest, ResizingAndShowingPutItAtRest) {
    SendMove(&button, inside);
    button.resize(120, 26);
    EXPECT_EQ(button.State(), 1);
    SendMove(&button, inside);
    button.hide();
    button.show();
    EXPECT_EQ(button.State(), 1);
}

TEST_F(ucButtonTest, LeavingTakesTheLightOff) {
    SendMove(&button, inside);
    SendLeave(&button);
    EXPECT_EQ(button.State(), 1);
}

TEST_F(ucButtonTest, SettingTheSameCaptionRepaintsWithoutChangingTheState) {
    SendMove(&button, inside);
    QApplication::processEvents();
    EventCount paints(&button, QEvent::Paint);
    button.SetCaption(QStringLiteral("Done"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.Count() == 1; }));
    EXPECT_EQ(button.State(), 2);
}

TEST_F(ucButtonTest, RepaintsOnlyWhenTheStateReallyChanges) {
    SendMove(&button, inside);
    QApplication::processEvents();
    EventCount paints(&button, QEvent::Paint);
    SendMove(&button, inside);
    SendMove(&button, QPointF(20, 5));
    QApplication::processEvents();
    EXPECT_EQ(paints.Count(), 0);
}

TEST_F(ucButtonTest, CapsKeepTheirWidthAndTheMiddleFillsTheRest) {
    for (const int width : {60, 300}) {
        button.resize(width, 26);
        const auto at = button.layoutRects();
        EXPECT_EQ(at.picL.width(), 10);
        EXPECT_EQ(at.picR.width(), 10);
        EXPECT_EQ(at.picM, QRect(10, 0, width - 20, 26));
        EXPECT_EQ(at.picR.right(), width - 1);
    }
}

TEST_F(ucButtonTest, TheMiddleIsOneColumnStretched) {
    button.SetCaption(QString());
    button.resize(200, 26);
    const QImage drawn = Grab(&button);
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 11; x < 190; ++x)
            ASSERT_EQ(drawn.pixel(x, y), drawn.pixel(10, y)) << x << ',' << y;
}

TEST_F(ucButtonTest, SpaceAndReturnPressIt) {
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_EQ(button.State(), 3);
    EXPECT_EQ(clicks.count(), 0);
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(button.State(), 1);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(ucButtonTest, LosingTheFocusWhileSpaceIsHeldLetsItUp) {
    QTest::keyPress(&button, Qt::Key_Space);
    QFocusEvent lost(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&button, &lost);
    EXPECT_EQ(button.State(), 1);
}

TEST_F(ucButtonTest, TheRightButtonDoesNotClick) {
    QTest::mouseClick(&button, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucButtonTest, IsDrivenByItsPropertiesFromOutside) {
    button.setProperty("Caption", "Eat foods");
    button.setProperty("Enabled", false);
    EXPECT_EQ(button.Caption(), "Eat foods");
    EXPECT_EQ(button.property("State").toInt(), 4);
    EXPECT_FALSE(button.Enabled());
}
