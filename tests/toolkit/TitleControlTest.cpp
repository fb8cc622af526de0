#include "toolkit/Input.h"

#include "support/HalvaneTest.h"
#include "toolkit/DragOutline.h"
#include "toolkit/ucTitleBar.h"
#include "toolkit/ucTitleFlat.h"

#include <QApplication>
#include <QSignalSpy>

namespace {

class TitleControlTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.setGeometry(100, 80, 300, 200);
        window.show();
    }

    static int Outlines() {
        int shown = 0;
        for (const QWidget* top : QApplication::topLevelWidgets())
            shown += qobject_cast<const DragOutline*>(top) && top->isVisible();
        return shown;
    }

    QWidget window;
    ucTitleFlat& title = *new ucTitleFlat(&window);
    QSignalSpy moved{&title, &TitleControl::Moved};
};

} // namespace

TEST_F(TitleControlTest, AClickWithoutAMoveDrawsNothingAndMovesNothing) {
    QSignalSpy clicks(&title, &TitleControl::Click);
    SendPress(&title, QPointF(30, 10));
    SendRelease(&title, QPointF(30, 10));
    EXPECT_EQ(Outlines(), 0);
    EXPECT_EQ(window.pos(), QPoint(100, 80));
    EXPECT_EQ(moved.count(), 0);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(TitleControlTest, AMoveStraightDownDoesNotBeginADrag) {
    SendPress(&title, QPointF(30, 10));
    SendMove(&title, QPointF(30, 90), Qt::LeftButton);
    EXPECT_FALSE(title.Dragging());
    EXPECT_EQ(Outlines(), 0);
    SendMove(&title, QPointF(31, 90), Qt::LeftButton);
    EXPECT_TRUE(title.Dragging());
    EXPECT_EQ(Outlines(), 1);
    SendRelease(&title, QPointF(31, 90));
}

TEST_F(TitleControlTest, TheWindowMovesOnceAtTheEnd) {
    SendPress(&title, QPointF(30, 10));
    SendMove(&title, QPointF(60, 20), Qt::LeftButton);
    SendMove(&title, QPointF(80, 40), Qt::LeftButton);
    EXPECT_EQ(window.pos(), QPoint(100, 80));
    EXPECT_EQ(title.Outline(), QRect(150, 110, 300, 200));
    SendRelease(&title, QPointF(80, 40));
    EXPECT_EQ(window.pos(), QPoint(150, 110));
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(Outlines(), 0);
    EXPECT_FALSE(title.Dragging());
}

TEST_F(TitleControlTest, TheLastOutlineCountsAndNotThePlaceOfTheRelease) {
    SendPress(&title, QPointF(30, 10));
    SendMove(&title, QPointF(50, 10), Qt::LeftButton);
    SendRelease(&title, QPointF(200, 150));
    EXPECT_EQ(window.pos(), QPoint(120, 80));
}

TEST_F(TitleControlTest, AWindowCanBeDroppedPartlyOffTheScreen) {
    SendPress(&title, QPointF(30, 10));
    SendMove(&title, QPointF(-300, -200), Qt::LeftButton);
    SendRelease(&title, QPointF(-300, -200));
    EXPECT_EQ(window.pos(), QPoint(100 - 330, 80 - 210));
}

TEST_F(TitleControlTest, AWindowHiddenWhileItIsDraggedLeavesNoOutlineAndStays) {
    SendPress(&title, QPointF(30, 10));
    SendMove(&title, QPointF(60, 20), Qt::LeftButton);
    window.hide();
    EXPECT_EQ(Outlines(), 0);
    window.show();
    SendRelease(&title, QPointF(60, 20));
    EXPECT_EQ(window.pos(), QPoint(100, 80));
    EXPECT_EQ(moved.count(), 0);
}

TEST_F(TitleControlTest, AMoveWithoutTheButtonIsOnlyPassedOn) {
    QSignalSpy moves(&title, &TitleControl::MouseMove);
    SendMove(&title, QPointF(40, 10));
    EXPECT_FALSE(title.Dragging());
    EXPECT_EQ(moves.count(), 1);
}

TEST_F(TitleControlTest, TheFlatTitleDocksItselfWhenShownAndFollowsTheWidth) {
    title.hide();
    title.move(40, 60);
    title.show();
    EXPECT_EQ(title.geometry(), QRect(0, 0, 300, 34));
    window.resize(420, 200);
    EXPECT_EQ(title.width(), 420);
}

TEST_F(TitleControlTest, ATitleBarAwayFromTheCornerDragsTheWindowToo) {
    QWidget frame;
    frame.setWindowFlags(Qt::FramelessWindowHint);
    frame.setGeometry(50, 50, 200, 100);
    ucTitleBar bar(&frame);
    bar.setGeometry(10, 5, 150, 34);
    frame.show();
    SendPress(&bar, QPointF(5, 5));
    SendMove(&bar, QPointF(15, 8), Qt::LeftButton);
    SendRelease(&bar, QPointF(15, 8));
    EXPECT_EQ(frame.pos(), QPoint(60, 53));
}

TEST_F(TitleControlTest, SettingTheCaptionRepaintsAtOnce) {
    title.show();
    EXPECT_EQ(title.property("Caption").toString(), "Custom");
    const QImage before = Grab(&title);
    title.setProperty("Caption", "Eat foods");
    EXPECT_NE(Grab(&title), before);
}
