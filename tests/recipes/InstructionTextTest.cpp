#include "recipes/ui/InstructionText.h"

#include "support/HalvaneTest.h"
#include "toolkit/ucScroll.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

class InstructionTextTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        box.resize(500, box.sizeHint().height());
        box.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    }

    static QString Lines(int count) {
        QStringList lines;
        for (int i = 1; i <= count; ++i)
            lines << "line " + QString::number(i);
        return lines.join(u'\n');
    }
    QPlainTextEdit* Text() { return Find<QPlainTextEdit>(&box, "txtInstructions"); }
    ucScroll* Bar() { return Find<ucScroll>(&box, "vsInstructions"); }
    int TopLine() { return Text()->verticalScrollBar()->value(); }
    /// Does what the card does to show a recipe.
    void Show(const QString& text) {
        box.SetText(QString());
        box.SetText(text);
        box.ResetBar();
    }
    void Wheel(QWidget* over, int notches) {
        const QPointF place = over->rect().center();
        QWheelEvent turn(place, over->mapToGlobal(place), QPoint(), QPoint(0, -120 * notches),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(over, &turn);
    }

    InstructionText box;
};

TEST_F(InstructionTextTest, EmptyTextHasOneLineAndNoBar) {
    EXPECT_EQ(box.LineCount(), 1);
    EXPECT_FALSE(Bar()->isVisible());
}

TEST_F(InstructionTextTest, FiveLinesFitAndShowNoBar) {
    Show(Lines(5));
    EXPECT_EQ(box.LineCount(), 5);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Text()->verticalScrollBar()->maximum(), 0);
}

TEST_F(InstructionTextTest, SixLinesShowABarWithAMaxOfOne) {
    Show(Lines(6));
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Bar()->Min(), 0);
    EXPECT_EQ(Bar()->Max(), 1);
    EXPECT_EQ(Bar()->SmallChange(), 1);
    EXPECT_EQ(Bar()->LargeChange(), 1);
    EXPECT_EQ(Text()->verticalScrollBar()->maximum(), 1);
}

TEST_F(InstructionTextTest, FiveThousandLinesScrollFromTheFirstToTheLast) {
    Show(Lines(5000));
    EXPECT_EQ(box.LineCount(), 5000);
    EXPECT_EQ(Bar()->Max(), 4995);
    EXPECT_EQ(TopLine(), 0);
    for (int value = 1; value <= 4995; ++value)
        Bar()->SetValue(value);
    EXPECT_EQ(TopLine(), 4995);
}

TEST_F(InstructionTextTest, LineCountFollowsTheWidthOfTheCard) {
    Show(QString("word ").repeated(200));
    const int wide = box.LineCount();
    EXPECT_GT(wide, 5);
    EXPECT_EQ(Bar()->Max(), wide - 5);
    box.resize(250, box.height());
    EXPECT_GT(box.LineCount(), wide);
}

TEST_F(InstructionTextTest, ANewTextIsShownFromItsBeginning) {
    Show(Lines(20));
    for (int value = 1; value <= 10; ++value)
        Bar()->SetValue(value);
    EXPECT_EQ(TopLine(), 10);
    Show(Lines(30));
    EXPECT_EQ(TopLine(), 0);
    EXPECT_EQ(Bar()->Value(), 0);
}

TEST_F(InstructionTextTest, EachStepOfTheBarMovesTheTextOneLine) {
    Show(Lines(20));
    Bar()->SetValue(1);
    EXPECT_EQ(TopLine(), 1);
    Bar()->SetValue(2);
    EXPECT_EQ(TopLine(), 2);
    Bar()->SetValue(1);
    EXPECT_EQ(TopLine(), 1);
    Bar()->SetValue(1);
    EXPECT_EQ(TopLine(), 1);
}

TEST_F(InstructionTextTest, DraggingTheBarOverSeveralValuesScrollsOneLineOnly) {
    Show(Lines(20));
    const ucScroll::Layout at = Bar()->layoutRects();
    const QPoint grip = at.picTB.center();
    QTest::mousePress(Bar(), Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent move(QEvent::MouseMove, QPointF(grip.x(), at.picSlot.bottom()),
                     Bar()->mapToGlobal(QPointF(grip.x(), at.picSlot.bottom())), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Bar(), &move);
    QTest::mouseRelease(Bar(), Qt::LeftButton, Qt::NoModifier, at.picSlot.bottomLeft());
    EXPECT_EQ(Bar()->Value(), 15);
    EXPECT_EQ(TopLine(), 1);
    Bar()->SetValue(3);
    EXPECT_EQ(TopLine(), 0);
}

TEST_F(InstructionTextTest, TypingPutsTheBarToTheLineOfTheCaretPlusOne) {
    box.SetReadOnly(false);
    Show(Lines(20));
    Text()->setFocus();
    QTextCursor caret = Text()->textCursor();
    caret.setPosition(Text()->document()->findBlockByNumber(3).position());
    Text()->setTextCursor(caret);
    QTest::keyClicks(Text(), "x");
    EXPECT_EQ(Bar()->Value(), 4);
    EXPECT_EQ(TopLine(), 1);
    QTest::keyClicks(Text(), "y");
    EXPECT_EQ(TopLine(), 1);
}

TEST_F(InstructionTextTest, TheBarComesAndGoesWithTheSixthLine) {
    box.SetReadOnly(false);
    Show(Lines(5));
    Text()->setFocus();
    Text()->moveCursor(QTextCursor::End);
    QTest::keyClick(Text(), Qt::Key_Return);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Bar()->Max(), 1);
    QTest::keyClick(Text(), Qt::Key_Backspace);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(TopLine(), 0);
}

TEST_F(InstructionTextTest, TheSameTextAgainIsNoChange) {
    Show(Lines(20));
    box.SetText(Lines(20));
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_EQ(TopLine(), 0);
}

TEST_F(InstructionTextTest, TheSameTextAgainDropsWhatWasTyped) {
    box.SetReadOnly(false);
    Show("Stir.");
    QTest::keyClicks(Text(), "Never ");
    box.SetText("Stir.");
    EXPECT_EQ(box.Text(), "Stir.");
}

TEST_F(InstructionTextTest, TheWheelMovesTextAndBarTogether) {
    Show(Lines(20));
    Wheel(Text()->viewport(), 1);
    EXPECT_EQ(TopLine(), 3);
    EXPECT_EQ(Bar()->Value(), 3);
    Wheel(Bar(), 1);
    EXPECT_EQ(TopLine(), 6);
    EXPECT_EQ(Bar()->Value(), 6);
    for (int turn = 0; turn < 10; ++turn)
        Wheel(Bar(), 1);
    EXPECT_EQ(TopLine(), 15);
    EXPECT_EQ(Bar()->Value(), 15);
    Bar()->SetValue(14);
    EXPECT_EQ(TopLine(), 14);
}

TEST_F(InstructionTextTest, ReadOnlyTextCanBeChosenButNotChanged) {
    Show("Stir.");
    Text()->setFocus();
    QTest::keyClicks(Text(), "x");
    EXPECT_EQ(box.Text(), "Stir.");
    QTest::keyClick(Text(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Text()->textCursor().selectedText(), "Stir.");
}

TEST_F(InstructionTextTest, TabLeavesTheText) {
    box.SetReadOnly(false);
    Show(Lines(6));
    Text()->setFocus();
    QTest::keyClick(Text(), Qt::Key_Tab);
    EXPECT_EQ(box.Text(), Lines(6));
    EXPECT_TRUE(Bar()->hasFocus());
}
