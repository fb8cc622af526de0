#include "toolkit/Input.h"

#include "support/HalvaneTest.h"
#include "toolkit/ucCalButton.h"

#include <QSignalSpy>
#include <QTest>

namespace {

class ucCalButtonTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        button.resize(80, 26);
        button.show();
    }

    ucCalButton button;
    QSignalSpy clicks{&button, &ucCalButton::Click};
    const QPointF inside{40, 13};
    const QPointF outside{40, 40};
};

} // namespace

TEST_F(ucCalButtonTest, TheNPictureIsTheOneAtRest) {
    EXPECT_EQ(button.Caption(), "Custom");
    EXPECT_EQ(button.PictureOn(), "img_N");
    SendMove(&button, inside);
    EXPECT_EQ(button.PictureOn(), "img_R");
    SendPress(&button, inside);
    EXPECT_EQ(button.PictureOn(), "img_D");
}

TEST_F(ucCalButtonTest, StillLooksPressedAfterAReleaseUntilTheNextMove) {
    SendPress(&button, inside);
    SendRelease(&button, inside);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(button.State(), 3);
    SendMove(&button, inside);
    EXPECT_EQ(button.State(), 2);
}

TEST_F(ucCalButtonTest, ReleasedOutsideItIsAtRestWithoutAClick) {
    SendPress(&button, inside);
    SendMove(&button, outside, Qt::LeftButton);
    EXPECT_EQ(button.State(), 1);
    SendRelease(&button, outside);
    EXPECT_EQ(button.State(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucCalButtonTest, AnotherButtonLightsIt) {
    SendPress(&button, inside, Qt::RightButton);
    EXPECT_EQ(button.State(), 2);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucCalButtonTest, ResetAlwaysGivesState1) {
    SendPress(&button, inside);
    button.setEnabled(false);
    button.Reset();
    EXPECT_EQ(button.State(), 1);
}

TEST_F(ucCalButtonTest, EveryMoveRaisesMouseMove) {
    QSignalSpy moves(&button, &ucCalButton::MouseMove);
    SendMove(&button, inside);
    SendMove(&button, outside, Qt::LeftButton);
    EXPECT_EQ(moves.count(), 2);
}

TEST_F(ucCalButtonTest, SpaceAndReturnPressIt) {
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 2);
}
