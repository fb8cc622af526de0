#include "core/CoreTest.h"

#include "core/Tips.h"
#include "runtime/AppPath.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"

#include <QDir>

class TipsTest : public CoreTest {
protected:
    /// As a start does.
    QString Next() {
        const Tips::Tip tip = Tips::Next();
        Tips::Remember(tip);
        return tip.text;
    }
    /// The tip that a start shows if `number` was the last one.
    QString After(const QString& number) {
        SetRegValue(QStringLiteral("TIPNUM"), number);
        return Next();
    }
    QString Stored() { return GetRegValue(QStringLiteral("TIPNUM")); }
    int FailureNumber() {
        try {
            Next();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }
};

TEST_F(TipsTest, LinesEndInAnyWayAndTheLastNeedsNoEnd) {
    const QList<QByteArrayView> wanted{"one", "two", "", "four"};
    EXPECT_EQ(Tips::Lines("one\ntwo\n\nfour"), wanted);
    EXPECT_EQ(Tips::Lines("one\r\ntwo\r\n\r\nfour\r\n"), wanted);
    EXPECT_EQ(Tips::Lines("one\rtwo\r\rfour\r"), wanted);
    EXPECT_TRUE(Tips::Lines("").isEmpty());
    EXPECT_EQ(Tips::Lines("\n").size(), 1);
}

TEST_F(TipsTest, TheTipAfterTheLastIsTheFirst) {
    WriteFile(QStringLiteral("tips.txt"), "one\ntwo\nthree\n");
    EXPECT_EQ(After(QStringLiteral("3")), QStringLiteral("one"));
    EXPECT_EQ(Stored(), QStringLiteral("1"));
    EXPECT_EQ(Next(), QStringLiteral("two"));
    EXPECT_EQ(Next(), QStringLiteral("three"));
    EXPECT_EQ(Stored(), QStringLiteral("3"));
    EXPECT_EQ(Next(), QStringLiteral("one"));
}

TEST_F(TipsTest, ANumberThatIsAbsentOrNotAboveZeroGivesTheFirst) {
    WriteFile(QStringLiteral("tips.txt"), "one\ntwo\nthree\n");
    EXPECT_EQ(Next(), QStringLiteral("one"));
    for (const char* number : {"0", "-2", "-1e300", "", "  "}) {
        EXPECT_EQ(After(QLatin1String(number)), QStringLiteral("one")) << number;
        EXPECT_EQ(Stored(), QStringLiteral("1")) << number;
    }
}

TEST_F(TipsTest, ANonsenseNumberGivesTheFirst) {
    WriteFile(QStringLiteral("tips.txt"), "one\ntwo\nthree\n");
    for (const char* number : {"abc", "2abc", "1,5", "1e400", "nan", "inf", "99999999999999999999",
                               "4294967297", "2147483647", "True", "#1/1/2002#"}) {
        EXPECT_EQ(After(QLatin1String(number)), QStringLiteral("one")) << number;
        EXPECT_EQ(Stored(), QStringLiteral("1")) << number;
    }
}

TEST_F(TipsTest, AnEmptyLineIsATipOfItsOwn) {
    WriteFile(QStringLiteral("tips.txt"), "one\n\nthree\n");
    EXPECT_EQ(After(QStringLiteral("1")), QString());
    EXPECT_EQ(Next(), QStringLiteral("three"));
}

TEST_F(TipsTest, CarriageReturnsAndAByteOrderMarkAreNoPartOfATip) {
    WriteFile(QStringLiteral("tips.txt"), "\xEF\xBB\xBFone\r\ncr\xC3\xA8me\r\n");
    EXPECT_EQ(Next(), QStringLiteral("one"));
    EXPECT_EQ(Next(), QStringLiteral("crème"));
    EXPECT_EQ(Next(), QStringLiteral("one"));
}

TEST_F(TipsTest, AHundredThousandLinesAreAllReached) {
    QByteArray text;
    for (int line = 1; line <= 100000; ++line)
        text += "tip " + QByteArray::number(line) + "\r\n";
    WriteFile(QStringLiteral("tips.txt"), text);
    EXPECT_EQ(After(QStringLiteral("99999")), QStringLiteral("tip 100000"));
    EXPECT_EQ(Next(), QStringLiteral("tip 1"));
}

TEST_F(TipsTest, AMissingFileFailsWithFileNotFoundAndLeavesTheNumber) {
    SetRegValue(QStringLiteral("TIPNUM"), QStringLiteral("7"));
    EXPECT_EQ(FailureNumber(), ErrorNumber::FileNotFound);
    EXPECT_EQ(Stored(), QStringLiteral("7"));
}

TEST_F(TipsTest, AnEmptyFileFailsTheLookUpAndLeavesTheNumber) {
    WriteFile(QStringLiteral("tips.txt"), "");
    SetRegValue(QStringLiteral("TIPNUM"), QStringLiteral("7"));
    EXPECT_EQ(FailureNumber(), 9);
    EXPECT_EQ(Stored(), QStringLiteral("7"));
}

TEST_F(TipsTest, AFolderInPlaceOfTheFileFailsBelowTheMessageThreshold) {
    ASSERT_TRUE(QDir().mkdir(FileBeside(QStringLiteral("tips.txt"))));
    EXPECT_EQ(FailureNumber(), 75);
}
