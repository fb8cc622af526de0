#include "IntakeTest.h"

#include "drawing/Style.h"
#include "toolkit/AtePane.h"
#include "toolkit/ucButtonA.h"
#include "toolkit/ucScroll.h"

#include <QSignalSpy>
#include <QTest>

/// The pane in a host without headings and without a limit.
class AtePaneTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        pane.resize(300, 200);
        pane.show();
    }

    void Fill(int count, bool resetPane = false) {
        const AtePane::Redraw redraw(pane, resetPane);
        if (count == 0)
            pane.AddBlankLine();
        for (int i = 1; i <= count; ++i)
            pane.showFood("Food " + QString::number(i), "1 cup", i, 1);
    }

    AtePane pane;
};

TEST_F(AtePaneTest, EmptyListHasNoLinesAndNoBar) {
    Fill(0);
    EXPECT_EQ(pane.LineCount(), 0);
    EXPECT_FALSE(pane.vsResultsPane()->isVisible());
}

TEST_F(AtePaneTest, WithoutALimitEveryLineIsDrawn) {
    Fill(320);
    EXPECT_EQ(pane.LineCount(), 320);
    EXPECT_EQ(pane.picResultsPane()->height(), 320 * TheStyle().tallRowHeight);
}

TEST_F(AtePaneTest, RemoveFoodIsSignalledAndTheHostRemovesTheLine) {
    Fill(2);
    QSignalSpy removal(&pane, &AtePane::RemoveFood);
    Click(pane.Line(2)->imgTrash());
    ASSERT_EQ(removal.size(), 1);
    EXPECT_EQ(removal[0][0].toInt(), 2);
    EXPECT_EQ(pane.LineCount(), 2);
}

TEST_F(AtePaneTest, ResetShowsTheTop) {
    Fill(20);
    pane.vsResultsPane()->SetValue(100);
    Fill(19, true);
    EXPECT_EQ(pane.picResultsPane()->y(), 0);
    EXPECT_EQ(pane.vsResultsPane()->Value(), 0);
    EXPECT_TRUE(pane.vsResultsPane()->isVisible());
}

TEST_F(AtePaneTest, ShortListFillsTheFrameUnlessSwitchedOff) {
    Fill(2);
    EXPECT_EQ(pane.picResultsPane()->height(), 200);
    pane.SetFillsFrame(false);
    Fill(2);
    EXPECT_EQ(pane.picResultsPane()->height(), 2 * TheStyle().tallRowHeight);
    pane.resize(300, 77);
    EXPECT_TRUE(pane.vsResultsPane()->isVisible());
    pane.resize(300, 300);
    EXPECT_FALSE(pane.vsResultsPane()->isVisible());
    EXPECT_EQ(pane.picResultsPane()->height(), 2 * TheStyle().tallRowHeight);
}

TEST_F(AtePaneTest, ResetShowsTheTopWhereverTheFocusIs) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
    Fill(20);
    pane.Line(20)->imgTrash()->setFocus();
    EXPECT_GT(pane.vsResultsPane()->Value(), 0);
    Fill(19, true);
    EXPECT_EQ(pane.picResultsPane()->y(), 0);
    EXPECT_FALSE(pane.picResultsPane()->isAncestorOf(pane.focusWidget()));
}

TEST_F(AtePaneTest, RedrawThatFailsHalfwayLeavesAWorkingList) {
    const auto fail = [this] {
        const AtePane::Redraw redraw(pane, false);
        pane.showFood("Food 1", "1 cup", 1, 1);
        throw std::runtime_error("store");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_TRUE(pane.picResultsPane()->updatesEnabled());
    EXPECT_EQ(pane.LineCount(), 1);
    Fill(3);
    EXPECT_EQ(pane.LineCount(), 3);
}
