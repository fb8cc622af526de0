#include "toolkit/Input.h"

#include "support/HalvaneTest.h"
#include "toolkit/ScrollPane.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

class ScrollPaneTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        pane.resize(200, 100);
        pane.show();
        pane.ResetPane();
    }

    void Overflow(int height) {
        pane.SetPaneHeight(height);
        pane.ShowBar();
    }
    int Top() const { return pane.picResultsPane()->y(); }
    ucScroll& Bar() { return *pane.vsResultsPane(); }

    ScrollPane pane;
};

} // namespace

TEST_F(ScrollPaneTest, AFreshPaneFillsTheFrameAndHidesItsBar) {
    EXPECT_EQ(pane.picResultsPane()->geometry(), QRect(0, 0, 184, 100));
    EXPECT_EQ(pane.FrameHeight(), 100);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_EQ(Bar().Value(), 0);
}

TEST_F(ScrollPaneTest, APaneThatWasNeverResetStandsAtTheTop) {
    ScrollPane fresh;
    fresh.resize(200, 100);
    fresh.SetPaneHeight(300);
    fresh.ShowBar();
    EXPECT_EQ(fresh.vsResultsPane()->Value(), 0);
    EXPECT_EQ(fresh.picResultsPane()->y(), 0);
}

TEST_F(ScrollPaneTest, TheBarIsSetUpForTheOverhangInTenthsOfTwips) {
    Overflow(300);
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(Bar().Min(), 0);
    EXPECT_EQ(Bar().Max(), 300);
    EXPECT_EQ(Bar().LargeChange(), 100);
    EXPECT_EQ(Bar().SmallChange(), 20);
    Overflow(103); // 4.5 goes to the even neighbour
    EXPECT_EQ(Bar().Max(), 4);
}

TEST_F(ScrollPaneTest, ThePanesTopIsMinusTenTwipsTimesTheValue) {
    Overflow(300);
    QSignalSpy scrolled(&pane, &ScrollPane::Scrolled);
    Bar().SetValue(30);
    EXPECT_EQ(Top(), -20);
    EXPECT_EQ(scrolled.count(), 1);
    Bar().SetValue(30);
    EXPECT_EQ(scrolled.count(), 1);
    Bar().SetValue(1000);
    EXPECT_EQ(Top(), -200);
}

TEST_F(ScrollPaneTest, TheBarStandsOnTheInnerRightEdge) {
    Overflow(300);
    EXPECT_EQ(Bar().geometry(), QRect(184, 0, 16, 100));
    EXPECT_EQ(pane.PaneWidth(), 184);
}

TEST_F(ScrollPaneTest, ResettingGoesBackToTheTop) {
    Overflow(300);
    Bar().SetValue(90);
    pane.ResetPane();
    EXPECT_EQ(Top(), 0);
    EXPECT_EQ(Bar().Value(), 0);
    EXPECT_EQ(pane.picResultsPane()->height(), 100);
}

TEST_F(ScrollPaneTest, AShorterPaneIsPulledBackWhenTheBarIsSetUpAgain) {
    Overflow(300);
    Bar().SetValue(300);
    Overflow(200);
    EXPECT_EQ(Bar().Value(), 150);
    EXPECT_EQ(Top(), -100);
}

TEST_F(ScrollPaneTest, HidingTheBarLeavesItsValueAsItStands) {
    Overflow(300);
    Bar().SetValue(60);
    pane.HideBar();
    EXPECT_EQ(Bar().Value(), 60);
}

TEST_F(ScrollPaneTest, TheWheelScrollsWhileTheBarIsShown) {
    Overflow(300);
    SendWheel(&pane, -120);
    EXPECT_EQ(Top(), -40);
    pane.HideBar();
    SendWheel(&pane, -120);
    EXPECT_EQ(Top(), -40);
}

TEST_F(ScrollPaneTest, EnsureVisibleScrollsNoFurtherThanItMust) {
    Overflow(300);
    pane.EnsureVisible(QRect(0, 20, 10, 30));
    EXPECT_EQ(Top(), 0);
    pane.EnsureVisible(QRect(0, 150, 10, 26));
    EXPECT_LE(-Top(), 150);
    EXPECT_GE(-Top() + 100, 176);
    EXPECT_NEAR(Top(), -76, 1);
    pane.EnsureVisible(QRect(0, 40, 10, 26));
    EXPECT_NEAR(Top(), -40, 1);
}

TEST_F(ScrollPaneTest, WhateverTakesTheFocusIsScrolledIntoSight) {
    auto* far = new QLineEdit(pane.picResultsPane());
    far->setGeometry(0, 250, 50, 24);
    far->show();
    Overflow(300);
    QApplication::setActiveWindow(&pane);
    far->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Top() < 0; }));
    EXPECT_GE(-Top() + 100, 274);
}

TEST_F(ScrollPaneTest, ATallerFrameDropsTheBarAndGoesToTheTop) {
    Overflow(300);
    Bar().SetValue(90);
    QSignalSpy scrolled(&pane, &ScrollPane::Scrolled);
    pane.resize(200, 400);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_EQ(Top(), 0);
    EXPECT_GE(scrolled.count(), 1);
    EXPECT_EQ(pane.picResultsPane()->height(), 400);
}

TEST_F(ScrollPaneTest, ASmallerFrameKeepsTheBarUpToDate) {
    Overflow(300);
    pane.resize(180, 50);
    EXPECT_EQ(Bar().Max(), 375);
    EXPECT_EQ(pane.picResultsPane()->width(), 164);
}
