#include "runtime/Val.h"

#include <QString>

#include <gtest/gtest.h>

TEST(Val, TakesTheLeadingNumber) {
    EXPECT_EQ(Val(u"12"), 12);
    EXPECT_EQ(Val(u"150.5 pounds"), 150.5);
    EXPECT_EQ(Val(u"5ft"), 5);
    EXPECT_EQ(Val(u"12.5.7"), 12.5);
    EXPECT_EQ(Val(u"007"), 7);
    EXPECT_EQ(Val(u"3-4"), 3);
}

TEST(Val, IsZeroWhereThereIsNoNumber) {
    for (const char16_t* text : {u"", u" ", u"abc", u".", u"-", u"+", u"-.", u"e5", u"$5", u",5",
                                 u"--5", u"inf", u"nan", u"True", u"٣", u"５"})
        EXPECT_EQ(Val(text), 0) << QString::fromUtf16(text).toStdString();
}

TEST(Val, SkipsBlanksTabsAndLineBreaksEverywhere) {
    EXPECT_EQ(Val(u"  1 2\t3\r\n4 "), 1234);
    EXPECT_EQ(Val(u" - 5"), -5);
    EXPECT_EQ(Val(u"1 . 5"), 1.5);
    EXPECT_EQ(Val(u"1 e 2"), 100);
}

TEST(Val, StopsAtOtherWhiteSpace) {
    EXPECT_EQ(Val(u"1\u00a02"), 1);
}

TEST(Val, TakesSignsAndBarePoints) {
    EXPECT_EQ(Val(u"+5"), 5);
    EXPECT_EQ(Val(u"-30"), -30);
    EXPECT_EQ(Val(u".05"), 0.05);
    EXPECT_EQ(Val(u"-.5"), -0.5);
    EXPECT_EQ(Val(u"5."), 5);
}

TEST(Val, StopsAtAComma) {
    EXPECT_EQ(Val(u"1,5"), 1);
    EXPECT_EQ(Val(u"1,000"), 1);
}

TEST(Val, TakesAnExponentOnlyWithDigits) {
    EXPECT_EQ(Val(u"1e3"), 1000);
    EXPECT_EQ(Val(u"1E-2"), 0.01);
    EXPECT_EQ(Val(u"2e+1x"), 20);
    EXPECT_EQ(Val(u"5e"), 5);
    EXPECT_EQ(Val(u"5e-"), 5);
    EXPECT_EQ(Val(u"5 eggs"), 5);
}

TEST(Val, IsZeroForWhatIsTooLargeOrTooSmall) {
    EXPECT_EQ(Val(u"1e400"), 0);
    EXPECT_EQ(Val(u"-1e400"), 0);
    EXPECT_EQ(Val(u"1e-400"), 0);
    EXPECT_EQ(Val(u"1e99999999999999999999"), 0);
    EXPECT_EQ(Val(u"0e400"), 0);
    EXPECT_EQ(Val(QString(QString(400, u'9'))), 0);
}

TEST(Val, KeepsTheGreatestAndSmallestDoubles) {
    EXPECT_EQ(Val(u"1.7976931348623157e308"), 1.7976931348623157e308);
    EXPECT_EQ(Val(u"4.9406564584124654e-324"), 4.9406564584124654e-324);
}

TEST(Val, ReadsTenThousandDigits) {
    EXPECT_EQ(Val(QString(u"0." + QString(10000, u'3'))), 1.0 / 3);
    EXPECT_EQ(Val(QString(QString(10000, u'0') + u"12")), 12);
    EXPECT_EQ(Val(QString(QString(10000, u'a'))), 0);
}

TEST(Val, StopsAtAnEmbeddedNul) {
    EXPECT_EQ(Val(QStringView(u"12\0003", 4)), 12);
}
