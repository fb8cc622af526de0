#include "toolkit/Input.h"

#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

namespace {

class ucScrollTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        bar.resize(16, 168); // arrows of 16, a slot of 136, a thumb of 36, a travel of 100
        bar.SetMin(0);
        bar.SetMax(200);
        bar.show();
        bar.SetValue(0);
        changes.clear();
    }

    QPointF Up() const { return QRectF(bar.layoutRects().imgUp).center(); }
    QPointF Down() const { return QRectF(bar.layoutRects().imgDown).center(); }
    QPointF Slot(double y) const { return QPointF(8, bar.layoutRects().picSlot.top() + y); }
    bool WaitForChanges(int count) {
        return QTest::qWaitFor([this, count] { return changes.count() >= count; }, 3000);
    }

    ucScroll bar;
    QSignalSpy changes{&bar, &ucScroll::Change};
};

} // namespace

TEST_F(ucScrollTest, StartsWithItsDefaults) {
    const ucScroll fresh;
    EXPECT_EQ(fresh.Value(), 1);
    EXPECT_EQ(fresh.Max(), 10);
    EXPECT_EQ(fresh.Min(), 1);
    EXPECT_EQ(fresh.LargeChange(), 20);
    EXPECT_EQ(fresh.SmallChange(), 5);
    EXPECT_EQ(fresh.BackStyle(), 1);
}

TEST_F(ucScrollTest, AValueAboveMaxIsStoredAsMax) {
    bar.SetValue(201);
    EXPECT_EQ(bar.Value(), 200);
    bar.SetValue(200);
    EXPECT_EQ(bar.Value(), 200);
}

TEST_F(ucScrollTest, AValueBelowMinIsStoredAsMin) {
    bar.SetMin(1);
    bar.SetValue(0);
    EXPECT_EQ(bar.Value(), 1);
}

TEST_F(ucScrollTest, MinWinsWhereMaxLiesBelowIt) {
    bar.SetMin(50);
    bar.SetMax(20);
    bar.SetValue(30);
    EXPECT_EQ(bar.Value(), 50);
}

TEST_F(ucScrollTest, SettingTheSameValueRaisesChangeAgain) {
    bar.SetValue(0);
    bar.SetValue(0);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(ucScrollTest, SettingMaxOrMinOnlyStores) {
    bar.SetValue(150);
    changes.clear();
    bar.SetMax(100);
    bar.SetMin(120);
    EXPECT_EQ(bar.Value(), 150);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ucScrollTest, ChangeIsRaisedBeforeTheThumbIsPlaced) {
    int topAtChange = -1;
    QObject::connect(&bar, &ucScroll::Change, [&] { topAtChange = bar.ThumbTop(); });
    bar.SetValue(100);
    EXPECT_EQ(topAtChange, 0);
    EXPECT_EQ(bar.ThumbTop(), 50);
}

TEST_F(ucScrollTest, TheThumbStandsAtValueByMaxOfTheTravelRoundedHalfToEven) {
    ASSERT_EQ(bar.Travel(), 100);
    bar.SetValue(1); // 0.5
    EXPECT_EQ(bar.ThumbTop(), 0);
    bar.SetValue(3); // 1.5
    EXPECT_EQ(bar.ThumbTop(), 2);
    bar.SetValue(200);
    EXPECT_EQ(bar.ThumbTop(), 100);
}

TEST_F(ucScrollTest, MinTakesNoPartInTheThumbsPlace) {
    bar.SetMin(100);
    bar.SetValue(100);
    EXPECT_EQ(bar.ThumbTop(), 50);
}

TEST_F(ucScrollTest, AMinOf0AndAValueOf0PutTheThumbAtTheTop) {
    bar.SetValue(100);
    bar.SetMin(0);
    bar.SetValue(0);
    EXPECT_EQ(bar.ThumbTop(), 0);
}

TEST_F(ucScrollTest, AMaxOf0PutsTheThumbAtTheTop) {
    bar.SetValue(50);
    bar.SetMax(0);
    bar.SetValue(0);
    EXPECT_EQ(bar.ThumbTop(), 0);
}

TEST_F(ucScrollTest, LaysItsPartsOutFromTopToBottom) {
    bar.resize(16, 300);
    const auto at = bar.layoutRects();
    EXPECT_EQ(at.imgUp, QRect(0, 0, 16, 16));
    EXPECT_EQ(at.imgDown.bottom(), 299);
    EXPECT_EQ(at.picSlot, QRect(0, 16, 16, 268));
    EXPECT_EQ(bar.Travel(), 268 - at.picTB.height());
}

TEST_F(ucScrollTest, AVeryShortBarStillWorks) {
    bar.resize(16, 20);
    bar.SetValue(100);
    SendPress(&bar, QPointF(8, 2));
    SendRelease(&bar, QPointF(8, 2));
    EXPECT_EQ(bar.Value(), 95);
    EXPECT_FALSE(Grab(&bar).isNull());
}

TEST_F(ucScrollTest, AHeldArrowHasTheGroundOfAPressedButton) {
    SendPress(&bar, Down());
    const QPoint corner = bar.layoutRects().imgDown.topLeft() + QPoint(2, 0);
    EXPECT_EQ(Grab(&bar).pixelColor(corner), TheStyle().button[2].ground.from);
    SendRelease(&bar, Down());
    EXPECT_NE(Grab(&bar).pixelColor(corner), TheStyle().button[2].ground.from);
}

TEST_F(ucScrollTest, AClickOnAnArrowMovesOneSmallChangeWithoutRepeat) {
    SendPress(&bar, Down());
    SendRelease(&bar, Down());
    EXPECT_EQ(bar.Value(), 5);
    SendPress(&bar, Up());
    SendRelease(&bar, Up());
    EXPECT_EQ(bar.Value(), 0);
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return since.hasExpired(500); }, 3000));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(ucScrollTest, AHeldArrowRepeatsAfter400MillisecondsEvery50) {
    QElapsedTimer since;
    since.start();
    SendPress(&bar, Down());
    EXPECT_EQ(changes.count(), 1);
    ASSERT_TRUE(WaitForChanges(2));
    EXPECT_GE(since.elapsed(), 399);
    ASSERT_TRUE(WaitForChanges(6));
    EXPECT_GE(since.elapsed(), 599);
    EXPECT_EQ(bar.Value(), 5 * changes.count());
    SendRelease(&bar, Down());
    const auto atRelease = changes.count();
    since.restart();
    EXPECT_TRUE(QTest::qWaitFor([&] { return since.hasExpired(150); }, 3000));
    EXPECT_EQ(changes.count(), atRelease);
}

TEST_F(ucScrollTest, HoldingTheArrowAtMaxStopsAfterTheFirstStep) {
    bar.SetValue(200);
    changes.clear();
    SendPress(&bar, Down());
    ASSERT_TRUE(WaitForChanges(2));
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return since.hasExpired(200); }, 3000));
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(bar.Value(), 200);
}

TEST_F(ucScrollTest, AnArrowHeldToTheEndLooksReleasedOnceItStops) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bar));
    bar.SetValue(200);
    const QImage atRest = Grab(&bar);
    SendPress(&bar, Down());
    EXPECT_NE(Grab(&bar), atRest);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Grab(&bar) == atRest; }, 3000));
}

TEST_F(ucScrollTest, AHeldUpArrowStopsAtMin) {
    bar.SetValue(12);
    changes.clear();
    SendPress(&bar, Up());
    ASSERT_TRUE(WaitForChanges(3)); // 7, 2, 0
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return since.hasExpired(200); }, 3000));
    EXPECT_EQ(changes.count(), 3);
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ucScrollTest, AClickInTheSlotPagesTowardThePointer) {
    SendPress(&bar, Slot(100));
    SendRelease(&bar, Slot(100));
    EXPECT_EQ(bar.Value(), 20);
    bar.SetValue(150); // thumb at 75
    SendPress(&bar, Slot(10));
    SendRelease(&bar, Slot(10));
    EXPECT_EQ(bar.Value(), 130);
}

TEST_F(ucScrollTest, AHeldClickInTheSlotStopsOnceTheThumbHasPassedThePointer) {
    bar.SetLargeChange(40); // 20 pixels of travel
    SendPress(&bar, Slot(50));
    ASSERT_TRUE(WaitForChanges(3)); // tops 20, 40, 60
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return since.hasExpired(200); }, 3000));
    EXPECT_EQ(bar.ThumbTop(), 60);
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(ucScrollTest, ThePixelsOfTheThumbsEdgesBelongToTheThumb) {
    bar.SetValue(100); // thumb from 50 to 86
    for (const double y : {50.0, 86.0}) {
        SendPress(&bar, Slot(y));
        SendRelease(&bar, Slot(y));
    }
    EXPECT_EQ(bar.Value(), 100);
    SendPress(&bar, Slot(87));
    SendRelease(&bar, Slot(87));
    EXPECT_EQ(bar.Value(), 120);
    bar.SetValue(100);
    SendPress(&bar, Slot(49));
    SendRelease(&bar, Slot(49));
    EXPECT_EQ(bar.Value(), 80);
}

TEST_F(ucScrollTest, ADragFollowsThePointerAndRaisesChangeTwiceAMove) {
    SendPress(&bar, Slot(10));
    EXPECT_EQ(changes.count(), 0);
    SendMove(&bar, Slot(35), Qt::LeftButton);
    EXPECT_EQ(bar.ThumbTop(), 25);
    EXPECT_EQ(bar.Value(), 50);
    EXPECT_EQ(changes.count(), 2);
    SendMove(&bar, Slot(36), Qt::LeftButton);
    EXPECT_EQ(changes.count(), 4);
}

TEST_F(ucScrollTest, DraggingBeyondTheEndsStaysAtTheEnds) {
    SendPress(&bar, Slot(10));
    SendMove(&bar, Slot(500), Qt::LeftButton);
    EXPECT_EQ(bar.ThumbTop(), 100);
    EXPECT_EQ(bar.Value(), 200);
    SendMove(&bar, Slot(-500), Qt::LeftButton);
    EXPECT_EQ(bar.ThumbTop(), 0);
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ucScrollTest, AReleaseEndsTheDrag) {
    SendPress(&bar, Slot(10));
    SendRelease(&bar, Slot(10));
    SendMove(&bar, Slot(60), Qt::LeftButton);
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ucScrollTest, HidingItEndsAPress) {
    SendPress(&bar, Slot(10));
    bar.hide();
    bar.show();
    SendMove(&bar, Slot(60), Qt::LeftButton);
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ucScrollTest, KeysMoveIt) {
    struct Row {
        Qt::Key key;
        int value;
    };
    bar.SetValue(100);
    for (const Row& row : {Row{Qt::Key_Down, 105}, Row{Qt::Key_Up, 100}, Row{Qt::Key_PageDown, 120},
                           Row{Qt::Key_PageUp, 100}, Row{Qt::Key_End, 200}, Row{Qt::Key_Home, 0}}) {
        QTest::keyClick(&bar, row.key);
        EXPECT_EQ(bar.Value(), row.value);
    }
}

TEST_F(ucScrollTest, AWheelNotchIsThreeSmallSteps) {
    SendWheel(&bar, -120);
    EXPECT_EQ(bar.Value(), 15);
    SendWheel(&bar, 120);
    EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ucScrollTest, AFineWheelAddsUp) {
    for (int i = 0; i < 120; ++i)
        SendWheel(&bar, -1);
    EXPECT_EQ(bar.Value(), 15);
}

TEST_F(ucScrollTest, TellsWhenTheSlotHasBeenPainted) {
    QSignalSpy painted(&bar, &ucScroll::SlotPainted);
    Grab(&bar);
    EXPECT_EQ(painted.count(), 1);
}

TEST_F(ucScrollTest, CanBeReadAndDrivenThroughItsProperties) {
    bar.setProperty("SmallChange", 7);
    bar.setProperty("LargeChange", 70);
    bar.setProperty("Max", 300);
    bar.setProperty("Min", 10);
    bar.setProperty("Value", 5);
    bar.setProperty("BackStyle", 0);
    EXPECT_EQ(bar.property("Value").toInt(), 10);
    EXPECT_EQ(bar.property("Max").toInt(), 300);
    EXPECT_EQ(bar.property("BackStyle").toInt(), 0);
    QTest::keyClick(&bar, Qt::Key_Down);
    EXPECT_EQ(bar.Value(), 17);
}
