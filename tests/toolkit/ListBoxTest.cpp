#include "toolkit/ListBox.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/Input.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

namespace {

class ListBoxTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        ApplyStyle(*qApp);
        list.resize(200, 150);
        list.show();
    }

    void Fill(int count) {
        for (int i = 0; i < count; ++i)
            list.AddItem(QStringLiteral("Line %1").arg(i), 1000 + i);
        QApplication::processEvents();
    }
    QPoint OnLine(int index) const {
        return list.visualRect(list.model()->index(index, 0)).center();
    }
    void ClickLine(int index, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, held, OnLine(index));
    }
    QColor GroundOf(int index) {
        const QPoint place = list.viewport()->mapToParent(OnLine(index));
        return Grab(&list).pixelColor(QPoint(list.width() - 10, place.y()));
    }

    ListBox list;
    QSignalSpy clicks{&list, &ListBox::Click};
};

} // namespace

TEST_F(ListBoxTest, SetLinesReplacesTheLinesAndRaisesNothing) {
    Fill(3);
    list.SetListIndex(1);
    clicks.clear();
    list.SetLines({{QStringLiteral("Apple"), 7}, {QStringLiteral("Bread"), 5}});
    EXPECT_EQ(list.List(), QStringList({"Apple", "Bread"}));
    EXPECT_EQ(list.ItemData(0), 7);
    EXPECT_EQ(list.ItemData(1), 5);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.size(), 0);
}

TEST_F(ListBoxTest, StartsEmptyWithNoneChosen) {
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, LinesStandInTheOrderOfAddingWithTheirItemData) {
    list.AddItem(QStringLiteral("Zucchini"), 23510);
    list.AddItem(QStringLiteral("Apple"), -1);
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.Text(0), QStringLiteral("Zucchini"));
    EXPECT_EQ(list.ItemData(0), 23510);
    EXPECT_EQ(list.Text(1), QStringLiteral("Apple"));
    EXPECT_EQ(list.ItemData(1), -1);
    EXPECT_EQ(list.property("List").toStringList(), QStringList({"Zucchini", "Apple"}));
}

TEST_F(ListBoxTest, AddingDoesNotChoose) {
    Fill(3);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, SettingTheIndexRaisesClickAlsoForTheSameLine) {
    Fill(3);
    list.SetListIndex(1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks.count(), 1);
    list.SetListIndex(1);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ListBoxTest, AnIndexThatIsNoLinesChoosesNoneAndRaisesNothing) {
    Fill(3);
    for (const int index : {-1, 3, 5000, -7}) {
        list.SetListIndex(0);
        clicks.clear();
        list.SetListIndex(index);
        EXPECT_EQ(list.ListIndex(), -1) << index;
        EXPECT_EQ(clicks.count(), 0) << index;
        EXPECT_TRUE(list.selectionModel()->selectedIndexes().isEmpty()) << index;
    }
}

TEST_F(ListBoxTest, TextAndItemDataOfNoLineAreEmpty) {
    Fill(1);
    for (const int index : {-1, 1}) {
        EXPECT_EQ(list.Text(index), QString());
        EXPECT_EQ(list.ItemData(index), 0);
    }
}

TEST_F(ListBoxTest, ClearTakesAllLinesAndTheChoiceAndRaisesNothing) {
    Fill(3);
    list.SetListIndex(2);
    clicks.clear();
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, AClickOnALineChoosesItAndRaisesClickOnce) {
    Fill(3);
    ClickLine(2);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ListBoxTest, AClickOnTheChosenLineRaisesClickAgain) {
    Fill(3);
    ClickLine(0);
    ClickLine(0);
    EXPECT_EQ(clicks.count(), 2);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListBoxTest, AClickBelowTheLastLineChangesNothing) {
    Fill(2);
    ClickLine(1);
    clicks.clear();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 130));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, NoHeldKeyTakesTheChoiceAway) {
    Fill(2);
    for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
        ClickLine(1, held);
        ClickLine(1, held);
        EXPECT_EQ(list.ListIndex(), 1);
        EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));
    }
}

TEST_F(ListBoxTest, OnlyTheLeftButtonChooses) {
    Fill(2);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, OnLine(1));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, DraggingOverLinesChoosesEachOnItsWay) {
    Fill(4);
    SendPress(list.viewport(), OnLine(0));
    SendMove(list.viewport(), OnLine(2), Qt::LeftButton);
    SendRelease(list.viewport(), OnLine(2));
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ListBoxTest, TheKeyboardMovesTheChoiceAndRaisesClick) {
    Fill(30);
    list.SetListIndex(0);
    clicks.clear();
    const QList<QPair<Qt::Key, int>> steps{{Qt::Key_Down, 1},
                                           {Qt::Key_Up, 0},
                                           {Qt::Key_End, 29},
                                           {Qt::Key_Home, 0},
                                           {Qt::Key_Down, 1}};
    for (const auto& [key, index] : steps) {
        QTest::keyClick(&list, key);
        EXPECT_EQ(list.ListIndex(), index);
    }
    EXPECT_EQ(clicks.count(), steps.count());
    QTest::keyClick(&list, Qt::Key_PageDown);
    EXPECT_GT(list.ListIndex(), 3);
}

TEST_F(ListBoxTest, AKeyThatMovesNothingRaisesNothing) {
    Fill(2);
    list.SetListIndex(0);
    clicks.clear();
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, TypingLettersChoosesTheLineThatBeginsWithThem) {
    for (const char* text : {"Apple pie", "Bean stew", "Berry jam"})
        list.AddItem(QString::fromLatin1(text), 1);
    QTest::keyClicks(&list, QStringLiteral("ber"));
    EXPECT_EQ(list.ListIndex(), 2);
}

TEST_F(ListBoxTest, TabLeavesTheList) {
    QWidget window;
    auto* inside = new ListBox(&window);
    inside->AddItem(QStringLiteral("a"), 1);
    auto* after = new ListBox(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    inside->setFocus();
    QTest::keyClick(inside, Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
}

TEST_F(ListBoxTest, WhoeverHearsClickMayFillTheListAnew) {
    Fill(5);
    QObject::connect(&list, &ListBox::Click, &list, [this] {
        if (list.ListCount() != 5)
            return;
        list.Clear();
        Fill(2);
    });
    ClickLine(3);
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, TheChosenLineIsScrolledIntoSight) {
    Fill(5000);
    list.SetListIndex(4999);
    EXPECT_TRUE(list.viewport()->rect().contains(OnLine(4999)));
    list.SetListIndex(0);
    EXPECT_TRUE(list.viewport()->rect().contains(OnLine(0)));
}

TEST_F(ListBoxTest, TheChosenLineIsSlateAndWhite) {
    Fill(2);
    list.SetListIndex(1);
    EXPECT_EQ(GroundOf(1), TheStyle().chosenRow);
    EXPECT_EQ(GroundOf(0), TheStyle().paper);
}

TEST_F(ListBoxTest, ADisabledListShowsItsChoiceQuietlyAndTakesNoClick) {
    Fill(2);
    list.SetListIndex(1);
    clicks.clear();
    list.setProperty("Enabled", false);
    EXPECT_EQ(GroundOf(1), TheStyle().canvas); // on which grey text can be read
    const QPoint corner =
        list.viewport()->mapToParent(list.visualRect(list.currentIndex()).topLeft());
    EXPECT_EQ(Grab(&list).pixelColor(corner + QPoint(20, 0)), TheStyle().disabledInk);
    ClickLine(0);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(ListBoxTest, PointerMovesOverTheListAreToldToTheHost) {
    Fill(2);
    QSignalSpy moves(&list, &ListBox::MouseMove);
    SendMove(list.viewport(), OnLine(1));
    EXPECT_EQ(moves.count(), 1);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, AnIndexSetFromOutsideIsThePropertysToo) {
    Fill(3);
    EXPECT_TRUE(list.setProperty("ListIndex", 2));
    EXPECT_EQ(list.property("ListIndex").toInt(), 2);
    EXPECT_EQ(list.property("ListCount").toInt(), 3);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ListBoxTest, AssistiveToolsReadTheLinesAndTheChoice) {
    list.setAccessibleName(QStringLiteral("My Custom Foods"));
    Fill(3);
    list.SetListIndex(2);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::List);
    EXPECT_EQ(spoken->childCount(), 3);
    EXPECT_EQ(spoken->child(2)->text(QAccessible::Name), QStringLiteral("Line 2"));
    EXPECT_TRUE(spoken->child(2)->state().selected);
}

TEST_F(ListBoxTest, ATextThatIsCutStandsInTheTip) {
    list.AddItem(QStringLiteral("short"), 1);
    list.AddItem(QString(10000, u'W'), 2);
    QApplication::processEvents();
    const auto ask = [this](int line) {
        QHelpEvent help(QEvent::ToolTip, OnLine(line), list.viewport()->mapToGlobal(OnLine(line)));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(ask(0), QString());
    EXPECT_TRUE(ask(1).contains(QString(100, u'W')));
}

TEST_F(ListBoxTest, LinesOfTenThousandCharactersAreCutForPaintingAndKeptWhole) {
    for (int i = 0; i < 200; ++i)
        list.AddItem(QString(10000, QChar(u'a' + i % 26)), i);
    Grab(&list);
    EXPECT_LT(FittingText(list.Text(3), TheStyle().text, list.width()).size(), 200);
    EXPECT_EQ(list.Text(3).size(), 10000);
}

TEST_F(ListBoxTest, OddTextsAreKeptAsTheyAre) {
    const QString texts[] = {QString(), QStringLiteral("O'Brien's <b>stew</b>"),
                             QStringLiteral("two\nlines"), QString(QChar(0)) + QStringLiteral("x")};
    for (const QString& text : texts)
        list.AddItem(text, 1);
    Grab(&list);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(list.Text(i), texts[i]);
}
