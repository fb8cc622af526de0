#include "toolkit/ucDropDown.h"

#include "drawing/Style.h"
#include "runtime/RuntimeError.h"
#include "support/Failure.h"
#include "support/HalvaneTest.h"
#include "toolkit/DropItem.h"
#include "toolkit/Input.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int ItemTwips = 300;
constexpr int FirstTop = 45;
constexpr int EndRoom = 45;

class ucDropDownTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        form.resize(400, 400);
        list.move(20, 20);
        list.setObjectName("ucMonth");
        form.show();
        QApplication::setActiveWindow(&form);
    }

    void Fill(int count) {
        for (int i = 1; i <= count; ++i)
            list.AddItem("Item " + QString::number(i), 100 * i);
    }
    DropItem* Item(int index) { return Find<DropItem>(&list, "lblItem" + QString::number(index)); }
    QScrollBar* Bar() { return Find<QScrollBar>(&list, "vsResults"); }
    QWidget* Panel() { return Find(&list, "picBox"); }
    QPoint Middle(QRect ucDropDown::Layout::*part) { return (list.layoutRects().*part).center(); }
    void ClickOn(QRect ucDropDown::Layout::*part) { Click(&list, Middle(part)); }
    void Move(QRect ucDropDown::Layout::*part, Qt::MouseButtons held = Qt::NoButton) {
        SendMove(&list, Middle(part), held);
    }

    void TakeFocusByTab() {
        QLineEdit before(&form);
        before.show();
        before.setFocus();
        QTest::keyClick(&before, Qt::Key_Tab);
        ASSERT_TRUE(list.hasFocus());
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&list, key, held);
    }
    /// One millisecond after the last letter.
    void Type(Qt::Key key) {
        QKeyEvent letter(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(key)));
        letter.setTimestamp(++now);
        QApplication::sendEvent(&list, &letter);
    }

    quint64 now = 100000; ///< milliseconds
    QWidget form;
    ucDropDown list{&form};
    QSignalSpy clicks{&list, &ucDropDown::Click};
    const int strip = TheStyle().fieldHeight;
};

using Layout = ucDropDown::Layout;

} // namespace

TEST_F(ucDropDownTest, ADisabledListHasTheQuietEdgeOfADisabledField) {
    const auto edge = [this] { return Grab(&list).pixelColor(list.width() / 2, 0); };
    list.clearFocus();
    EXPECT_EQ(edge(), TheStyle().fieldEdge);
    list.setEnabled(false);
    EXPECT_EQ(edge(), TheStyle().rule);
}

TEST_F(ucDropDownTest, BeginsWithALabelAndWithoutASelection) {
    EXPECT_EQ(list.Text(), "Label1");
    EXPECT_EQ(list.aHEIGHT(), 300);
    EXPECT_EQ(list.SelectedID(), 0);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(list.height(), strip);
    EXPECT_TRUE(Item(0)->isHidden());
}

TEST_F(ucDropDownTest, AnItemReadsBackWithoutLeadingButWithTwoTrailingBlanks) {
    list.AddItem("   May", 5);
    list.SetIndex(1);
    EXPECT_EQ(list.Text(), "May  ");
    EXPECT_EQ(Item(1)->Caption(), "May  ");
    list.SetText("  by hand ");
    EXPECT_EQ(list.Text(), "by hand ");
}

TEST_F(ucDropDownTest, AnItemOfBlanksReadsBackEmpty) {
    list.AddItem("   ", 1);
    list.SetIndex(1);
    EXPECT_EQ(Item(1)->Caption(), "  ");
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ucDropDownTest, TheSameTextTwiceGivesTwoItems) {
    list.AddItem("Same", 1);
    list.AddItem("Same", 2);
    EXPECT_EQ(Item(1)->Caption(), Item(2)->Caption());
    list.SetIndex(2);
    EXPECT_EQ(list.SelectedID(), 2);
}

TEST_F(ucDropDownTest, TagsKeepTheirSignAndAll32Bits) {
    const qint32 tags[] = {-5, std::numeric_limits<qint32>::max(),
                           std::numeric_limits<qint32>::min()};
    qint16 index = 0;
    for (const qint32 tag : tags) {
        list.AddItem("Tagged", tag);
        list.SetIndex(++index);
        EXPECT_EQ(list.SelectedID(), tag);
        EXPECT_EQ(Item(index)->Tag(), QString::number(tag));
    }
}

TEST_F(ucDropDownTest, ItemsStandOneBelowTheOther) {
    Fill(5);
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(Item(i)->y(), Item(i - 1)->y() + Item(i - 1)->height());
        EXPECT_FALSE(Item(i)->isHidden());
    }
    const QRect last = Item(5)->geometry();
    EXPECT_EQ(Find(&list, "picItemList")->height(), last.bottom() + 1 + EndRoom / 15);
}

TEST_F(ucDropDownTest, AListThatFitsHasNoScrollBar) {
    Fill(12);
    list.Set_aHEIGHT(12 * ItemTwips + FirstTop + EndRoom);
    EXPECT_TRUE(Bar()->isHidden());
    EXPECT_EQ(Bar()->maximum(), 0);
}

TEST_F(ucDropDownTest, AListLongerThanItsPanelHasOne) {
    Fill(12);
    list.Set_aHEIGHT(5 * ItemTwips);
    EXPECT_FALSE(Bar()->isHidden());
    EXPECT_EQ(Bar()->maximum(), 7 * ItemTwips + FirstTop + EndRoom);
    EXPECT_EQ(Bar()->pageStep(), 500);
    EXPECT_EQ(Bar()->singleStep(), 100);
}

TEST_F(ucDropDownTest, AddingShowsTheBarOnceTheListIsHigherThanThePanel) {
    Fill(5);
    list.Set_aHEIGHT(5 * ItemTwips + FirstTop + 1);
    EXPECT_EQ(list.aHEIGHT(), 5 * ItemTwips + FirstTop + EndRoom);
    EXPECT_TRUE(Bar()->isHidden());
    list.AddItem("One more", 6);
    EXPECT_FALSE(Bar()->isHidden());
    EXPECT_EQ(Bar()->maximum(), ItemTwips);
}

TEST_F(ucDropDownTest, APanelHigherThanItsItemsIsReducedToTheirEnd) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    EXPECT_EQ(list.aHEIGHT(), 3 * ItemTwips + FirstTop + EndRoom);
    EXPECT_EQ(Panel()->height(), list.aHEIGHT() / 15);
}

TEST_F(ucDropDownTest, APanelThatEndsWithItsLastItemIsNotReduced) {
    Fill(3);
    list.Set_aHEIGHT(3 * ItemTwips + FirstTop);
    EXPECT_EQ(list.aHEIGHT(), 3 * ItemTwips + FirstTop);
    EXPECT_FALSE(Bar()->isHidden());
    EXPECT_EQ(Bar()->maximum(), EndRoom);
}

TEST_F(ucDropDownTest, AddingPutsTheBarBackToTheTop) {
    Fill(12);
    list.Set_aHEIGHT(1500);
    Bar()->setValue(700);
    list.AddItem("One more", 13);
    EXPECT_EQ(Bar()->value(), 0);
    EXPECT_EQ(Find(&list, "picItemList")->y(), 0);
}

TEST_F(ucDropDownTest, ScrollingMovesTheListUp) {
    Fill(12);
    list.Set_aHEIGHT(1500);
    Bar()->setValue(600);
    EXPECT_EQ(Find(&list, "picItemList")->y(), -40);
}

TEST_F(ucDropDownTest, TheWheelScrollsAnOpenList) {
    Fill(12);
    list.Set_aHEIGHT(1500);
    ClickOn(&Layout::picArrow);
    SendWheel(Panel(), -120);
    EXPECT_GT(Bar()->value(), 0);
}

TEST_F(ucDropDownTest, ABarCountsNoFurtherThan16Bits) {
    Fill(150);
    EXPECT_EQ(Bar()->maximum(), 32767);
    list.SetIndex(150);
    EXPECT_EQ(list.SelectedID(), 15000);
}

TEST_F(ucDropDownTest, ClickingTheArrowTwiceOpensAndCloses) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::imgArrow);
    EXPECT_TRUE(Panel()->isVisible());
    EXPECT_EQ(list.height(), strip + list.aHEIGHT() / 15);
    EXPECT_EQ(Panel()->y(), strip);
    EXPECT_EQ(Panel()->width(), list.width());
    ClickOn(&Layout::imgArrow);
    EXPECT_FALSE(Panel()->isVisible());
    EXPECT_EQ(list.height(), strip);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, UntilAHeightIsSetThePanelHasTheOneThatIsRead) {
    Fill(3);
    ClickOn(&Layout::imgArrow);
    EXPECT_EQ(Panel()->height(), list.aHEIGHT() / 15);
    EXPECT_EQ(list.height(), strip + list.aHEIGHT() / 15);
}

TEST_F(ucDropDownTest, TheStripAndItsTextToggleItAsWell) {
    Fill(3);
    ClickOn(&Layout::lblMyName);
    EXPECT_TRUE(list.IsOpen());
    Click(&list, QPoint(2, 2));
    EXPECT_FALSE(list.IsOpen());
}

TEST_F(ucDropDownTest, ItTogglesOnThePressNotOnTheRelease) {
    Fill(3);
    SendPress(&list, Middle(&Layout::imgArrow));
    EXPECT_TRUE(list.IsOpen());
    SendRelease(&list, Middle(&Layout::imgArrow));
    EXPECT_TRUE(list.IsOpen());
}

TEST_F(ucDropDownTest, AnOpenListStandsAboveItsNeighbours) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    QPushButton neighbour(&form);
    neighbour.setGeometry(20, 20 + strip, 200, 100);
    neighbour.show();
    ClickOn(&Layout::picArrow);
    const QPoint onSecond = Item(2)->mapTo(&form, Item(2)->rect().center());
    EXPECT_EQ(form.childAt(onSecond), Item(2));
    ClickOn(&Layout::picArrow);
    EXPECT_EQ(form.childAt(onSecond), &neighbour);
}

TEST_F(ucDropDownTest, PickingSelectsClosesAndRaisesOneClick) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    bool open = true;
    QObject::connect(&list, &ucDropDown::Click, [&] { open = list.IsOpen(); });
    Click(Item(2));
    EXPECT_EQ(list.Text(), "Item 2  ");
    EXPECT_EQ(list.SelectedID(), 200);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_FALSE(open) << "closed before the event";
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucDropDownTest, PickingTheSelectedItemRaisesTheClickAgain) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    list.SetIndex(2);
    ClickOn(&Layout::picArrow);
    Click(Item(2));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(list.SelectedID(), 200);
}

TEST_F(ucDropDownTest, APressDraggedOffItsItemPicksNothing) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    SendPress(Item(2), {10, 10});
    SendRelease(Item(2), {10, 300});
    EXPECT_TRUE(list.IsOpen());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, SetIndexSelectsWithoutOpeningClosingOrAnEvent) {
    Fill(3);
    list.SetIndex(3);
    EXPECT_EQ(list.Text(), "Item 3  ");
    EXPECT_EQ(list.SelectedID(), 300);
    EXPECT_FALSE(list.IsOpen());
    ClickOn(&Layout::picArrow);
    list.SetIndex(1);
    EXPECT_TRUE(list.IsOpen());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, SetIndexOfAnItemThatIsNotLoadedFailsAndSelectsNothing) {
    Fill(3);
    list.SetIndex(2);
    for (const int index : {-32768, -1, 0, 4, 32767})
        EXPECT_EQ(FailureOf([&] { list.SetIndex(qint16(index)); }), ErrorNumber::NoSuchElement)
            << index;
    EXPECT_EQ(list.SelectedID(), 200);
    EXPECT_EQ(list.Text(), "Item 2  ");
}

TEST_F(ucDropDownTest, TheItemUnderThePointerAloneIsLit) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    Hover(Item(1));
    Hover(Item(2));
    EXPECT_EQ(Item(2)->BackColor(), QColor(131, 146, 151));
    EXPECT_EQ(Item(2)->ForeColor(), QColor(Qt::white));
    for (const int other : {1, 3}) {
        EXPECT_EQ(Item(other)->BackColor(), QColor(Qt::white));
        EXPECT_EQ(Item(other)->ForeColor(), QColor(Qt::black));
    }
    const QImage image = Grab(Item(2));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(131, 146, 151));
}

TEST_F(ucDropDownTest, OpenedAnewNoItemIsLit) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    Hover(Item(2));
    ClickOn(&Layout::picArrow);
    ClickOn(&Layout::picArrow);
    EXPECT_FALSE(Item(2)->IsLit());
}

TEST_F(ucDropDownTest, TheArrowFollowsPointerAndButton) {
    Fill(3);
    EXPECT_EQ(list.PictureOn(), "img_N");
    Move(&Layout::imgArrow);
    EXPECT_EQ(list.PictureOn(), "img_R");
    SendPress(&list, Middle(&Layout::imgArrow));
    EXPECT_EQ(list.PictureOn(), "img_D");
    SendMove(&list, {5, 5}, Qt::LeftButton);
    EXPECT_EQ(list.PictureOn(), "img_N");
    Move(&Layout::imgArrow, Qt::LeftButton);
    EXPECT_EQ(list.PictureOn(), "img_D");
    SendRelease(&list, Middle(&Layout::imgArrow));
    EXPECT_EQ(list.PictureOn(), "img_R");
    Move(&Layout::lblMyName);
    EXPECT_EQ(list.PictureOn(), "img_N");
}

TEST_F(ucDropDownTest, TheArrowIsAtRestOverAnItemAndWhereThePointerLeaves) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    Move(&Layout::imgArrow);
    Hover(Item(1));
    EXPECT_EQ(list.PictureOn(), "img_N");
    Move(&Layout::imgArrow);
    SendLeave(&list);
    EXPECT_EQ(list.PictureOn(), "img_N");
}

TEST_F(ucDropDownTest, TheArrowStandsAtTheRightEdge) {
    list.resize(180, list.height());
    const Layout at = list.layoutRects();
    EXPECT_EQ(at.picArrow.top(), 0);
    EXPECT_EQ(at.picArrow.right(), 179);
    EXPECT_EQ(at.imgArrow.center(), at.picArrow.center());
    EXPECT_EQ(at.picSelItem.topLeft(), QPoint());
    EXPECT_LE(qAbs(at.lblMyName.center().y() - at.picSelItem.center().y()), 1);
}

TEST_F(ucDropDownTest, ResetClosesAndResetPicLeavesTheListOpen) {
    Fill(3);
    ClickOn(&Layout::imgArrow);
    Move(&Layout::imgArrow);
    list.ResetPic();
    EXPECT_EQ(list.PictureOn(), "img_N");
    EXPECT_TRUE(list.IsOpen());
    Move(&Layout::imgArrow);
    list.Reset();
    EXPECT_EQ(list.PictureOn(), "img_N");
    EXPECT_FALSE(list.IsOpen());
}

TEST_F(ucDropDownTest, MovesOverStripArrowAndItemsRaiseMouseMove) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    ClickOn(&Layout::picArrow);
    QSignalSpy moves(&list, &ucDropDown::MouseMove);
    Move(&Layout::lblMyName);
    Move(&Layout::imgArrow);
    Hover(Item(1), {10, 5});
    ASSERT_EQ(moves.count(), 3);
    const QPoint place = Item(1)->mapTo(&list, QPoint(10, 5));
    EXPECT_EQ(moves.last().at(2).toDouble(), place.x() * 15.0);
    EXPECT_EQ(moves.last().at(3).toDouble(), place.y() * 15.0);
}

TEST_F(ucDropDownTest, ClosesWhenTheFocusGoes) {
    Fill(3);
    QLineEdit other(&form);
    other.show();
    ClickOn(&Layout::picArrow);
    EXPECT_TRUE(list.hasFocus());
    other.setFocus();
    EXPECT_FALSE(list.IsOpen());
}

TEST_F(ucDropDownTest, ClosesOnAPressOnWhatTakesNoFocus) {
    Fill(3);
    ClickOn(&Layout::picArrow);
    Click(&form, {390, 390});
    EXPECT_FALSE(list.IsOpen());
}

TEST_F(ucDropDownTest, APressOnItsOwnBarLeavesItOpen) {
    Fill(30);
    list.Set_aHEIGHT(3000);
    ClickOn(&Layout::picArrow);
    Click(Bar(), {5, Bar()->height() - 5});
    EXPECT_TRUE(list.IsOpen());
    EXPECT_EQ(Bar()->value(), 500);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(ucDropDownTest, OpensWithTheSelectedItemInSight) {
    Fill(30);
    list.Set_aHEIGHT(3000);
    list.SetIndex(30);
    ClickOn(&Layout::picArrow);
    EXPECT_EQ(Bar()->value(), Bar()->maximum());
    ClickOn(&Layout::picArrow);
    list.SetIndex(3);
    ClickOn(&Layout::picArrow);
    EXPECT_TRUE(Panel()->rect().contains(Item(3)->mapTo(Panel(), QPoint(0, 0))));
}

TEST_F(ucDropDownTest, ArrowsHomeAndEndPickWhileItIsClosed) {
    Fill(30);
    TakeFocusByTab();
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Down, 100}, {Qt::Key_Down, 200},
                                             {Qt::Key_Up, 100},   {Qt::Key_End, 3000},
                                             {Qt::Key_Up, 2900},  {Qt::Key_Home, 100}};
    int picked = 0;
    for (const auto& [key, id] : steps) {
        Press(key);
        EXPECT_EQ(list.SelectedID(), id);
        EXPECT_EQ(clicks.count(), ++picked);
        EXPECT_FALSE(list.IsOpen());
    }
}

TEST_F(ucDropDownTest, AKeyThatLeadsNowhereRaisesNoClick) {
    TakeFocusByTab();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_I})
        Press(key);
    EXPECT_EQ(list.SelectedID(), 0) << "an empty list";
    Fill(3);
    list.SetIndex(3);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_X, Qt::Key_Escape})
        Press(key);
    EXPECT_EQ(list.SelectedID(), 300);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, LettersPickTheNextItemThatBeginsWithThem) {
    for (const char* month : {"January", "May", "June", "July"})
        list.AddItem(month, list.SelectedID() + 1);
    list.SetIndex(1);
    TakeFocusByTab();
    const std::pair<Qt::Key, const char*> steps[] = {
        {Qt::Key_J, "June  "}, {Qt::Key_J, "July  "}, {Qt::Key_J, "January  "}};
    for (const auto& [key, text] : steps) {
        Type(key);
        EXPECT_EQ(list.Text(), text);
    }
}

TEST_F(ucDropDownTest, LettersThatFollowEachOtherQuicklyAreOneWord) {
    for (const int year : {1992, 1993, 2010, 2011, 2012})
        list.AddItem(QString::number(year), year);
    TakeFocusByTab();
    for (const Qt::Key digit : {Qt::Key_2, Qt::Key_0, Qt::Key_1, Qt::Key_1})
        Type(digit);
    EXPECT_EQ(list.SelectedID(), 2011);
    now += 10 * quint64(QApplication::keyboardInputInterval());
    Type(Qt::Key_1);
    EXPECT_EQ(list.SelectedID(), 1992) << "a word of its own";
}

TEST_F(ucDropDownTest, EnterSpaceAndF4OpenItWithTheSelectedItemLit) {
    Fill(30);
    list.Set_aHEIGHT(3000);
    list.SetIndex(30);
    TakeFocusByTab();
    const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {{Qt::Key_Return, Qt::NoModifier},
                                                              {Qt::Key_Enter, Qt::NoModifier},
                                                              {Qt::Key_Space, Qt::NoModifier},
                                                              {Qt::Key_F4, Qt::NoModifier},
                                                              {Qt::Key_Down, Qt::AltModifier}};
    for (const auto& [key, held] : keys) {
        Press(key, held);
        EXPECT_TRUE(list.IsOpen());
        EXPECT_TRUE(Item(30)->IsLit());
        EXPECT_EQ(Bar()->value(), Bar()->maximum());
        Press(Qt::Key_Escape);
        EXPECT_FALSE(list.IsOpen());
    }
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, WhileItIsOpenKeysLightAndEnterPicks) {
    Fill(30);
    list.Set_aHEIGHT(3000);
    list.SetIndex(2);
    TakeFocusByTab();
    Press(Qt::Key_Return);
    Press(Qt::Key_End);
    EXPECT_TRUE(Item(30)->IsLit());
    EXPECT_EQ(Bar()->value(), Bar()->maximum());
    Press(Qt::Key_Up);
    EXPECT_EQ(list.SelectedID(), 200);
    Press(Qt::Key_Return);
    EXPECT_EQ(list.SelectedID(), 2900);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucDropDownTest, EscapeClosesItWithoutPicking) {
    Fill(5);
    list.SetIndex(2);
    TakeFocusByTab();
    Press(Qt::Key_F4);
    Press(Qt::Key_Down);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(list.SelectedID(), 200);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ucDropDownTest, CommandsOfTheWindowAreNoLetters) {
    Fill(5);
    list.SetIndex(2);
    TakeFocusByTab();
    Press(Qt::Key_I, Qt::ControlModifier);
    Press(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(list.SelectedID(), 200);
}

TEST_F(ucDropDownTest, AssistiveToolsReadItOpenItAndPick) {
    Fill(3);
    list.Set_aHEIGHT(5000);
    list.setAccessibleName("Month");
    list.SetIndex(3);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list);
    EXPECT_EQ(spoken->role(), QAccessible::ComboBox);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Month");
    EXPECT_EQ(spoken->text(QAccessible::Value), "Item 3");
    EXPECT_TRUE(spoken->state().collapsed);
    const QString press = QAccessibleActionInterface::pressAction();
    spoken->actionInterface()->doAction(press);
    EXPECT_FALSE(list.IsOpen()) << "the tool gets its answer first";
    QCoreApplication::sendPostedEvents(&list);
    EXPECT_TRUE(list.IsOpen());
    EXPECT_TRUE(spoken->state().expanded);
    QAccessibleInterface* item = QAccessible::queryAccessibleInterface(Item(1));
    EXPECT_EQ(item->role(), QAccessible::ListItem);
    EXPECT_EQ(item->text(QAccessible::Name), "Item 1");
    item->actionInterface()->doAction(press);
    QCoreApplication::sendPostedEvents(Item(1));
    EXPECT_EQ(list.SelectedID(), 100);
    EXPECT_FALSE(list.IsOpen());
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ucDropDownTest, AssistiveToolsReadTheItemsAsAListWithTheChosenOne) {
    Fill(3);
    list.setAccessibleName("Month");
    list.SetIndex(3);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(spoken->textInterface(), nullptr);
    EXPECT_EQ(spoken->textInterface()->text(0, spoken->textInterface()->characterCount()),
              "Item 3");
    ASSERT_EQ(spoken->childCount(), 1);
    QAccessibleInterface* items = spoken->child(0);
    EXPECT_EQ(items->role(), QAccessible::List);
    EXPECT_EQ(items->text(QAccessible::Name), "Month");
    ASSERT_EQ(items->childCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(items->child(i)->parent(), items);
        EXPECT_EQ(items->indexOfChild(items->child(i)), i);
        EXPECT_EQ(items->child(i)->state().selected, i == 2);
    }
    EXPECT_EQ(items->child(3), nullptr);
}

TEST_F(ucDropDownTest, CanBeReadAndDrivenThroughItsProperties) {
    Fill(3);
    list.setProperty("aHEIGHT", 600);
    EXPECT_EQ(list.property("aHEIGHT").toInt(), 600);
    list.setProperty("Text", " Any");
    EXPECT_EQ(list.property("Text").toString(), "Any");
    list.SetIndex(2);
    EXPECT_EQ(list.property("SelectedID").toInt(), 200);
    EXPECT_FALSE(list.property("IsOpen").toBool());
    EXPECT_EQ(Item(2)->property("Caption").toString(), "Item 2  ");
    EXPECT_EQ(Item(2)->property("Tag").toString(), "200");
}

TEST_F(ucDropDownTest, ATextLongerThanTheStripIsCutBeforeTheArrow) {
    const QString longText = QString(10000, u'W') + QString::fromUtf8("🍞");
    list.AddItem(longText, 1);
    list.SetIndex(1);
    EXPECT_EQ(list.Text(), longText + "  ");
    const QImage with = Grab(&list);
    list.SetText("");
    const QImage without = Grab(&list);
    const QRect arrow = list.layoutRects().picArrow;
    EXPECT_EQ(with.copy(arrow), without.copy(arrow));
    EXPECT_NE(with, without);
}
