#include "toolkit/LineField.h"

#include "support/HalvaneTest.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

class LineFieldTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        field.show();
    }
    void Paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        field.paste();
    }
    void PressEnter(bool held) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                        held);
        QApplication::sendEvent(&field, &press);
    }

    LineField field;
};

} // namespace

TEST_F(LineFieldTest, APastedLineBreakBecomesABlank) {
    const QChar separators[] = {u'\n',       u'\v',         u'\f',        u'\r',
                                QChar(0x85), QChar(0x2028), QChar(0x2029)};
    for (const QChar separator : separators) {
        field.clear();
        Paste(u"Soup" + QString(separator) + u"of the day");
        EXPECT_EQ(field.text(), "Soup of the day") << int(separator.unicode());
    }
    field.clear();
    Paste(QStringLiteral("one\r\ntwo\n\nthree"));
    EXPECT_EQ(field.text(), "one two  three");
}

TEST_F(LineFieldTest, TheCursorStandsBehindWhatWasPasted) {
    field.setText(QStringLiteral("before after"));
    field.setCursorPosition(7);
    Paste(QStringLiteral("in\r\nbetween "));
    EXPECT_EQ(field.text(), "before in between after");
    EXPECT_EQ(field.cursorPosition(), 18);
}

TEST_F(LineFieldTest, ADroppedOrSetLineBreakBecomesABlankToo) {
    field.insert(QStringLiteral("1\n2")); // what a drop does
    EXPECT_EQ(field.text(), "1 2");
    field.setText(QStringLiteral("3\n4"));
    EXPECT_EQ(field.text(), "3 4");
}

TEST_F(LineFieldTest, OtherTextStaysAsItIsAndCanBeUndone) {
    Paste(QStringLiteral("\tcrème \U0001F35E "));
    EXPECT_EQ(field.text(), QStringLiteral("\tcrème \U0001F35E "));
    field.undo();
    EXPECT_EQ(field.text(), "");
}

TEST_F(LineFieldTest, EnterCountsOnceAPress) {
    QSignalSpy entered(&field, &QLineEdit::returnPressed);
    PressEnter(false);
    for (int repeat = 0; repeat < 20; ++repeat)
        PressEnter(true);
    EXPECT_EQ(entered.count(), 1);
    PressEnter(false);
    EXPECT_EQ(entered.count(), 2);
}
