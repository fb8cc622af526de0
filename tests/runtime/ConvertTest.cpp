#include "runtime/Convert.h"
#include "support/Failure.h"

#include <limits>

#include <gtest/gtest.h>

namespace {
int DoubleFailure(QStringView text) {
    return FailureOf([&] { ToDouble(text); });
}

std::string Text(double value) {
    return DecimalText(value).toStdString();
}
} // namespace

TEST(ToDouble, ReadsAPointSignAndExponent) {
    EXPECT_EQ(ToDouble(u"12"), 12);
    EXPECT_EQ(ToDouble(u"-3.25"), -3.25);
    EXPECT_EQ(ToDouble(u"+.5"), 0.5);
    EXPECT_EQ(ToDouble(u"5."), 5);
    EXPECT_EQ(ToDouble(u"1e3"), 1000);
    EXPECT_EQ(ToDouble(u"1E-2"), 0.01);
}

TEST(ToDouble, AllowsBlanksAroundTheNumber) {
    EXPECT_EQ(ToDouble(u" \t5\r\n"), 5);
}

TEST(ToDouble, FailsForTextThatIsNotWhollyANumber) {
    for (const char16_t* text :
         {u"", u" ", u"abc", u"5 feet", u"1 2", u"1,5", u"1,000", u".", u"-", u"- 5", u"5e", u"1e+",
          u"inf", u"nan", u"0x10", u"--5", u"1.2.3", u"٣"})
        EXPECT_EQ(DoubleFailure(text), ErrorNumber::TypeMismatch)
            << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(DoubleFailure(QStringView(u"5\0", 2)), ErrorNumber::TypeMismatch);
}

TEST(ToDouble, OverflowsForWhatIsTooLarge) {
    EXPECT_EQ(DoubleFailure(u"1e400"), ErrorNumber::Overflow);
    EXPECT_EQ(DoubleFailure(u"-1e400"), ErrorNumber::Overflow);
    EXPECT_EQ(DoubleFailure(QString(QString(400, u'9'))), ErrorNumber::Overflow);
}

TEST(ToDouble, TakesWhatIsTooSmallAsZero) {
    EXPECT_EQ(ToDouble(u"1e-400"), 0);
}

TEST(ToInteger, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(ToInteger(u"2.5"), 2);
    EXPECT_EQ(ToInteger(u"3.5"), 4);
    EXPECT_EQ(ToInteger(u" -7 "), -7);
}

TEST(ToInteger, FailsForTextAndOutOfRange) {
    EXPECT_EQ(FailureOf([] { ToInteger(u"abc"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(FailureOf([] { ToInteger(u""); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(FailureOf([] { ToInteger(u"2147483648"); }), ErrorNumber::Overflow);
}

TEST(ToDouble, QuotesNoMoreThan40CharactersInItsFailure) {
    const auto failure = [](int length) {
        try {
            ToDouble(QString(length, u'x'));
            return QString();
        } catch (const RuntimeError& error) {
            return error.Description();
        }
    };
    EXPECT_TRUE(failure(40).startsWith(u'"' + QString(40, u'x') + u'"'));
    EXPECT_EQ(failure(41), failure(40));
}

TEST(ToDate, ReadsMonthFirst) {
    EXPECT_EQ(ToDate(u"3/4/2002"), QDate(2002, 3, 4));
}

TEST(ToDate, FailsForTextThatIsNoDate) {
    EXPECT_EQ(FailureOf([] { ToDate(u"13/4/2002"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(FailureOf([] { ToDate(u""); }), ErrorNumber::TypeMismatch);
}

TEST(NumberOrZero, GivesTheNumber) {
    EXPECT_EQ(NumberOrZero(u"2.5"), 2.5);
    EXPECT_EQ(NumberOrZero(u" -1 "), -1);
}

TEST(NumberOrZero, GivesZeroForEverythingElse) {
    for (const char16_t* text :
         {u"", u"abc", u"5 feet", u"1,5", u"1e400", u"-1e400", u"nan", u"inf"})
        EXPECT_EQ(NumberOrZero(text), 0) << QString::fromUtf16(text).toStdString();
}

TEST(DecimalText, GivesTheShortestDigits) {
    EXPECT_EQ(Text(0), "0");
    EXPECT_EQ(Text(0.5), "0.5");
    EXPECT_EQ(Text(12), "12");
    EXPECT_EQ(Text(-3.25), "-3.25");
    EXPECT_EQ(Text(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(Text(100), "100");
    EXPECT_EQ(Text(0.055), "0.055");
    EXPECT_EQ(Text(157.45), "157.45");
}

TEST(DecimalText, NeverHasAnExponent) {
    EXPECT_EQ(Text(1e23), "100000000000000000000000");
    EXPECT_EQ(Text(1e-7), "0.0000001");
    EXPECT_EQ(Text(-1.5e-5), "-0.000015");
    EXPECT_EQ(DecimalText(1.7976931348623157e308).size(), 309);
    EXPECT_EQ(DecimalText(4.9406564584124654e-324).size(), 326);
}

TEST(DecimalText, HasNoSignForZero) {
    EXPECT_EQ(Text(-0.0), "0");
}

TEST(DecimalText, NamesWhatIsNotFinite) {
    EXPECT_EQ(Text(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(Text(-std::numeric_limits<double>::infinity()), "-inf");
}

TEST(DecimalText, ReadsBackAsTheSameDouble) {
    for (double value : {1.0 / 3, 2e-300, 123456.789, 9007199254740993.0, 1e15, 1e16, 0.1})
        EXPECT_EQ(ToDouble(DecimalText(value)), value);
}
