#include "foods/FoodsTest.h"

#include "drawing/Twips.h"
#include "foods/ui/SearchProgress.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "runtime/AppState.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

class ResultRowsTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        window_.resize(640, 480);
        panel_.resize(612, 440);
        window_.show();
        window_.activateWindow();
        QApplication::setActiveWindow(&window_);
    }

    void List(int count) {
        AddFoods(count, 1, "food");
        Search(panel_, "food");
    }
    ucScroll* Bar() { return Find<ucScroll>(&panel_, "vsResultsPane"); }
    QWidget* Pane() { return Find(&panel_, "picResultsPane"); }
    QWidget* Box() { return Find(&panel_, "picResultsBox"); }
    ucFood* Row(int index) { return Find<ucFood>(&panel_, u"ucFood" + QString::number(index)); }
    bool InView(const ucFood* row) {
        const int top = row->y() + Pane()->y();
        return top + row->height() > 0 && top < Box()->height();
    }
    int Materialised() {
        int count = 0;
        for (const ucFood* row : Rows(panel_))
            count += row->Materialised();
        return count;
    }
    static QString FocusName() {
        const QWidget* focus = QApplication::focusWidget();
        if (!focus)
            return {};
        const auto* row = qobject_cast<const ucFood*>(focus->parentWidget());
        return row ? QString(row->objectName() + u'/' + focus->objectName()) : focus->objectName();
    }
    static void Tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    static void BackTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }

    QWidget window_;
    ucSearchResults panel_{&window_};
};

TEST_F(ResultRowsTest, LimitOnDraws50Of51) {
    App().AppInfo.LIMITRESULTS = true;
    List(51);
    EXPECT_EQ(Rows(panel_).size(), 50);
    EXPECT_EQ(NamesShown(panel_).last(), "food 050");
}

TEST_F(ResultRowsTest, LimitOnDraws50Of50) {
    App().AppInfo.LIMITRESULTS = true;
    List(50);
    EXPECT_EQ(Rows(panel_).size(), 50);
}

TEST_F(ResultRowsTest, LimitOffDraws51Of51) {
    List(51);
    EXPECT_EQ(Rows(panel_).size(), 51);
}

TEST_F(ResultRowsTest, TheLimitCanHideAllStockFoods) {
    App().AppInfo.LIMITRESULTS = true;
    AddFoods(50, 23509, "food custom");
    List(2);
    EXPECT_FALSE(NamesShown(panel_).contains("food 001"));
}

TEST_F(ResultRowsTest, AListThatFitsHidesTheBar) {
    List(2);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Pane()->height(), Box()->height());
}

TEST_F(ResultRowsTest, ALongListSizesThePaneAndSetsTheBarUp) {
    List(20);
    const ucFood* last = Row(20);
    EXPECT_EQ(Pane()->height(), last->y() + last->height() + Twips::ToPixels(120));
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Bar()->Min(), 0);
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_EQ(Bar()->LargeChange(), 100);
    EXPECT_EQ(Bar()->SmallChange(), 20);
    EXPECT_NEAR(Bar()->Max(), Twips::FromPixels(Pane()->height() - Box()->height()) / 10.0, 0.5);
}

TEST_F(ResultRowsTest, TheBarMovesThePaneTenUnitsAStep) {
    List(20);
    Bar()->SetValue(60);
    EXPECT_EQ(Pane()->y(), -Twips::ToPixels(600));
    EXPECT_EQ(Row(1)->y(), 0);
}

TEST_F(ResultRowsTest, ANewSearchStartsAtTheTop) {
    List(20);
    Bar()->SetValue(Bar()->Max());
    Search(panel_, "food 00");
    EXPECT_EQ(Pane()->y(), 0);
    EXPECT_EQ(Rows(panel_).size(), 9);
    EXPECT_EQ(Bar()->Value(), 0);
}

TEST_F(ResultRowsTest, EachRowStartsWhereTheRowAboveEnds) {
    AddRecipe("food recipe", "1 bowl");
    AddFood({.id = 30, .name = "food short", .servB = QVariant()});
    AddFood({.id = 31, .name = "food short too", .servB = ""});
    List(3);
    EXPECT_EQ(Row(1)->y(), 0);
    for (int i = 2; i <= 6; ++i)
        EXPECT_EQ(Row(i)->y(), Row(i - 1)->y() + Row(i - 1)->height()) << i;
    const int shortRow = Row(1)->layoutRects().lines[1].txtQTY.top();
    EXPECT_EQ(Row(1)->height(), shortRow);
    EXPECT_EQ(Row(5)->height(), shortRow);
    EXPECT_EQ(Row(6)->height(), shortRow);
    EXPECT_GT(Row(2)->height(), shortRow);
}

TEST_F(ResultRowsTest, RowsTakeTheWidthOfThePane) {
    List(3);
    EXPECT_EQ(Row(2)->width(), Pane()->width());
    panel_.resize(500, 440);
    EXPECT_EQ(Row(2)->width(), Pane()->width());
}

TEST_F(ResultRowsTest, AListThatFitsTakesTheWidthOfTheScrollBarToo) {
    List(3);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Row(3)->width(), Box()->width());
    panel_.resize(500, 440);
    EXPECT_EQ(Row(3)->width(), Box()->width());
    AddFoods(20, 100, "food more");
    Search(panel_, "food");
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Row(3)->width(), Box()->width() - Bar()->width());
}

TEST_F(ResultRowsTest, TheFrameFillsThePanelBelowTheFields) {
    const QRect place(Box()->mapTo(&panel_, QPoint()), Box()->size());
    EXPECT_EQ(place.left(), Twips::ToPixels(15));
    EXPECT_EQ(place.top(), Twips::ToPixels(1065));
    EXPECT_EQ(panel_.width() - place.right() - 1, Twips::ToPixels(15));
    EXPECT_EQ(panel_.height() - place.bottom() - 1, Twips::ToPixels(30));
}

TEST_F(ResultRowsTest, TheScrollBarIsAtTheRightEdgeAndCoversTheTopLine) {
    List(20);
    const QRect bar = Bar()->geometry();
    EXPECT_EQ(bar.right(), Box()->geometry().right());
    EXPECT_EQ(bar.top(), Box()->y() - Twips::ToPixels(15));
    EXPECT_EQ(bar.height(), Box()->height() + Twips::ToPixels(15));
    panel_.resize(500, 400);
    EXPECT_EQ(Bar()->height(), Box()->height() + Twips::ToPixels(15));
}

TEST_F(ResultRowsTest, TheTemplateRowIsNeverShown) {
    List(3);
    EXPECT_FALSE(Row(0)->isVisible());
    EXPECT_TRUE(Row(1)->isVisible());
    EXPECT_TRUE(Row(3)->isVisible());
}

TEST_F(ResultRowsTest, AnEmptyResultSaysSoInTheMiddle) {
    List(3);
    Search(panel_, "nothing like it");
    const auto* text = Find<QLabel>(&panel_, "lblNoMatch");
    EXPECT_TRUE(text->isVisible());
    EXPECT_EQ(text->text(), "No foods or recipes matched your search term.");
    EXPECT_NEAR(text->geometry().center().x(), Pane()->width() / 2, 1);
    EXPECT_EQ(text->y(), Pane()->height() / 2);
    EXPECT_FALSE(Bar()->isVisible());
    Search(panel_, "food");
    EXPECT_FALSE(text->isVisible());
}

TEST_F(ResultRowsTest, TheNextSearchRemovesOldRowsAndTheirQuantities) {
    List(3);
    Find<QLineEdit>(Row(1), "txtQTY_A")->setText("7");
    Search(panel_, "food");
    EXPECT_EQ(Rows(panel_).size(), 3);
    EXPECT_EQ(Find<QLineEdit>(Row(1), "txtQTY_A")->text(), "1");
}

TEST_F(ResultRowsTest, QuantitiesStayWhileTheListScrolls) {
    List(20);
    Find<QLineEdit>(Row(1), "txtQTY_A")->setText("7");
    Bar()->SetValue(Bar()->Max());
    Bar()->SetValue(0);
    EXPECT_EQ(Find<QLineEdit>(Row(1), "txtQTY_A")->text(), "7");
}

TEST_F(ResultRowsTest, OnlyRowsInViewHaveControls) {
    List(150);
    for (const ucFood* row : Rows(panel_))
        EXPECT_EQ(row->Materialised(), InView(row)) << row->objectName().toStdString();
}

TEST_F(ResultRowsTest, EveryRowInViewHasItsControlsAtAnyPositionOfTheBar) {
    List(150);
    for (int value = 0; value <= Bar()->Max(); value += 97) {
        Bar()->SetValue(value);
        for (const ucFood* row : Rows(panel_))
            EXPECT_TRUE(row->Materialised() || !InView(row)) << row->objectName().toStdString();
    }
    Bar()->SetValue(Bar()->Max());
    EXPECT_TRUE(Row(150)->Materialised());
}

TEST_F(ResultRowsTest, ATallerFrameShowsRowsWithControls) {
    List(150);
    const int before = Materialised();
    window_.resize(640, 1400);
    panel_.resize(612, 1300);
    EXPECT_GT(Materialised(), before);
    for (const ucFood* row : Rows(panel_))
        EXPECT_TRUE(row->Materialised() || !InView(row));
}

TEST_F(ResultRowsTest, TabWalksTermSearchMealsSourcesAndThenTheRows) {
    List(3);
    Find(&panel_, "txtSearchString")->setFocus(Qt::TabFocusReason);
    QStringList walked;
    for (int i = 0; i < 23; ++i, Tab())
        walked << FocusName();
    const QStringList fields{"txtSearchString", "cmdGo",   "opMeal0",  "opMeal1",  "opMeal2",
                             "opMeal3",         "ckStock", "ckCustom", "ckRecipes"};
    EXPECT_EQ(walked.mid(0, 9), fields);
    const QStringList row{"txtQTY_A", "cmdEAT_a", "imgInfo_W_A",
                          "txtQTY_B", "cmdEAT_B", "imgInfo_W_B"};
    for (int i = 0; i < 14; ++i)
        EXPECT_EQ(walked[9 + i],
                  QString(u"ucFood" + QString::number(i / 6 + 1) + u'/' + row[i % 6]));
}

TEST_F(ResultRowsTest, TabReachesRowsThatHaveNotBeenSeenAndScrollsThemIntoView) {
    List(30);
    Find(&panel_, "ckRecipes")->setFocus(Qt::TabFocusReason);
    for (int row = 1; row <= 30; ++row) {
        Tab();
        EXPECT_EQ(FocusName(), QString(u"ucFood" + QString::number(row) + u"/txtQTY_A"));
        const int top = Row(row)->y() + Pane()->y();
        EXPECT_GE(top, 0) << row;
        EXPECT_LE(top + Row(row)->height(), Box()->height()) << row;
        for (int step = 0; step < 5; ++step)
            Tab();
        EXPECT_EQ(FocusName(), QString(u"ucFood" + QString::number(row) + u"/imgInfo_W_B"));
    }
}

TEST_F(ResultRowsTest, BackTabReachesTheLastControlOfARowNotYetSeen) {
    List(30);
    Row(30)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(FocusName(), "ucFood30/txtQTY_A");
    EXPECT_FALSE(Row(29)->Materialised() && Row(25)->Materialised());
    for (int row = 29; row >= 20; --row) {
        BackTab();
        EXPECT_EQ(FocusName(), QString(u"ucFood" + QString::number(row) + u"/imgInfo_W_B"));
        for (int step = 0; step < 5; ++step)
            BackTab();
        EXPECT_EQ(FocusName(), QString(u"ucFood" + QString::number(row) + u"/txtQTY_A"));
    }
}

TEST_F(ResultRowsTest, TabSkipsAMissingServing) {
    AddRecipe("food recipe", "1 bowl");
    AddRecipe("food recipe too", "1 bowl");
    Search(panel_, "food");
    Find(Row(1), "imgInfo_W_A")->setFocus(Qt::TabFocusReason);
    Tab();
    EXPECT_EQ(FocusName(), "ucFood2/txtQTY_A");
    BackTab();
    EXPECT_EQ(FocusName(), "ucFood1/imgInfo_W_A");
}

TEST_F(ResultRowsTest, APressOnAHalfHiddenRowClicks) {
    List(20);
    ucFood* row = nullptr;
    for (ucFood* candidate : Rows(panel_))
        if (InView(candidate) && candidate->y() + candidate->height() > Box()->height())
            row = candidate;
    ASSERT_NE(row, nullptr);
    const QString id = row->ID();
    Bar()->SetValue(Twips::FromPixels(row->y() + row->layoutRects().lines[0].cmdEAT.center().y() -
                                      Box()->height()) /
                        10 +
                    3);
    int chosen = 0;
    QObject::connect(
        &panel_, &ucSearchResults::FoodChosen, &panel_,
        [&](const QString&, const ScaledFood& item) { chosen = item.Item("ID").toInt(); });
    Click(Find(row, "cmdEAT_a"));
    EXPECT_EQ(QString::number(chosen), id);
}

TEST_F(ResultRowsTest, TheProgressBarFillsByTheFraction) {
    auto* progress = panel_.findChild<SearchProgress*>();
    const int width = Find(progress, "picHome")->width();
    progress->Begin();
    EXPECT_TRUE(progress->isVisible());
    EXPECT_EQ(progress->FilledPixels(), 0);
    progress->SetFraction(0.25);
    EXPECT_EQ(progress->FilledPixels(), width / 4);
    const QImage bar = Grab(Find(progress, "picHome"));
    EXPECT_NE(bar.pixel(width / 4 - 1, 5), bar.pixel(width / 4, 5));
    EXPECT_EQ(bar.pixel(0, 5), bar.pixel(width / 4 - 1, 5));
    EXPECT_EQ(bar.pixel(width - 1, 5), bar.pixel(width / 4, 5));
    progress->SetFraction(1);
    EXPECT_EQ(progress->FilledPixels(), width);
}

TEST_F(ResultRowsTest, ASearchFillsTheBarToItsEnd) {
    List(7);
    EXPECT_EQ(panel_.findChild<SearchProgress*>()->Fraction(), 1);
    EXPECT_FALSE(Find(&panel_, "picSlide")->isVisible());
}
