#include "support/HalvaneTest.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucRadio.h"

#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A window with one control, and a finger.
class TouchTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        window_.resize(300, 200);
    }
    void Show(QWidget& control) {
        control.move(20, 20);
        control.show();
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }
    void Tap(const QWidget& control, QPoint place) {
        const QPoint at = control.mapTo(&window_, place);
        QTest::touchEvent(&window_, finger_).press(0, at, &window_);
        QTest::touchEvent(&window_, finger_).release(0, at, &window_);
    }
    /// How often a tap into its middle makes it click.
    template <class Control> int ClicksOfATap(Control&& control) {
        control.setParent(&window_);
        Show(control);
        QSignalSpy clicks(&control, &DrawnControl::Click);
        Tap(control, control.rect().center());
        return int(clicks.count());
    }

    QWidget window_;
    QPointingDevice* finger_ = QTest::createTouchDevice();
};

} // namespace

TEST_F(TouchTest, ATapOnADrawnControlIsOneClick) {
    EXPECT_EQ(ClicksOfATap(ucButton(QStringLiteral("Save"))), 1);
    EXPECT_EQ(ClicksOfATap(ucButtonA()), 1);
    EXPECT_EQ(ClicksOfATap(ucRadio(QStringLiteral("Lunch"))), 1);
    EXPECT_EQ(ClicksOfATap(ucCalButton()), 1);
}

TEST_F(TouchTest, AFingerThatLeavesTheControlClicksNothing) {
    ucButton button(QStringLiteral("Save"), &window_);
    Show(button);
    QSignalSpy clicks(&button, &DrawnControl::Click);
    QTest::touchEvent(&window_, finger_).press(0, QPoint(25, 25), &window_);
    QTest::touchEvent(&window_, finger_).move(0, QPoint(200, 150), &window_);
    QTest::touchEvent(&window_, finger_).release(0, QPoint(200, 150), &window_);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(TouchTest, ATapTicksABoxAndOpensAList) {
    QCheckBox box(QStringLiteral("Recipes"), &window_);
    Show(box);
    Tap(box, QPoint(8, box.height() / 2));
    EXPECT_TRUE(box.isChecked());
    box.hide();
    ucDropDown list(&window_);
    list.AddItem(QStringLiteral("May"), 5);
    Show(list);
    Tap(list, list.rect().center());
    EXPECT_TRUE(list.IsOpen());
}
