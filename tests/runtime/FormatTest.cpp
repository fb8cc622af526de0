#include "runtime/Format.h"

#include <QLocale>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {
std::string Text(double value, NumberMask mask) {
    return Format(value, mask).toStdString();
}

/// Sets another locale during a test.
class InLocale {
public:
    explicit InLocale(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~InLocale() { QLocale::setDefault(before_); }

private:
    QLocale before_;
};
} // namespace

TEST(Format, UpToTwoDecimalsDropsZerosAtTheEnd) {
    EXPECT_EQ(Text(1.5, NumberMask::UpToTwoDecimals), "1.5");
    EXPECT_EQ(Text(1.25, NumberMask::UpToTwoDecimals), "1.25");
    EXPECT_EQ(Text(0.05, NumberMask::UpToTwoDecimals), "0.05");
    EXPECT_EQ(Text(1234.5, NumberMask::UpToTwoDecimals), "1234.5");
}

TEST(Format, UpToTwoDecimalsKeepsItsPoint) {
    EXPECT_EQ(Text(5, NumberMask::UpToTwoDecimals), "5.");
    EXPECT_EQ(Text(0, NumberMask::UpToTwoDecimals), "0.");
    EXPECT_EQ(Text(0.001, NumberMask::UpToTwoDecimals), "0.");
    EXPECT_EQ(Text(99.996, NumberMask::UpToTwoDecimals), "100.");
}

TEST(Format, HalvesGoAwayFromZeroOnTheShortestDecimalText) {
    EXPECT_EQ(Text(1.005, NumberMask::UpToTwoDecimals), "1.01");
    EXPECT_EQ(Text(2.675, NumberMask::UpToTwoDecimals), "2.68");
    EXPECT_EQ(Text(0.005, NumberMask::UpToTwoDecimals), "0.01");
    EXPECT_EQ(Text(-1.005, NumberMask::UpToTwoDecimals), "-1.01");
    EXPECT_EQ(Text(1.0049999, NumberMask::UpToTwoDecimals), "1.");
    EXPECT_EQ(Text(0.5, NumberMask::WholeNumber), "1");
    EXPECT_EQ(Text(2.5, NumberMask::WholeNumber), "3");
    EXPECT_EQ(Text(-2.5, NumberMask::WholeNumber), "-3");
    EXPECT_EQ(Text(100.5, NumberMask::Thousands), "101");
}

TEST(Format, RoundingDownLeavesTheDigitsBefore) {
    EXPECT_EQ(Text(10.1, NumberMask::Thousands), "10");
    EXPECT_EQ(Text(110.4, NumberMask::WholeNumber), "110");
    EXPECT_EQ(Text(1.101, NumberMask::UpToTwoDecimals), "1.1");
    EXPECT_EQ(Text(1.001, NumberMask::UpToTwoDecimals), "1.");
}

TEST(Format, CarriesThroughNines) {
    EXPECT_EQ(Text(0.995, NumberMask::UpToTwoDecimals), "1.");
    EXPECT_EQ(Text(9.999, NumberMask::UpToTwoDecimals), "10.");
    EXPECT_EQ(Text(999.5, NumberMask::Thousands), "1,000");
    EXPECT_EQ(Text(1.996, NumberMask::UpToTwoDecimals), "2.");
    EXPECT_EQ(Text(1.295, NumberMask::UpToTwoDecimals), "1.3");
}

TEST(Format, ANegativeValueThatRoundsToZeroHasNoSign) {
    EXPECT_EQ(Text(-0.001, NumberMask::UpToTwoDecimals), "0.");
    EXPECT_EQ(Text(-0.4, NumberMask::WholeNumber), "0");
    EXPECT_EQ(Text(-0.0, NumberMask::Thousands), "");
}

TEST(Format, ThousandsOfZeroIsEmpty) {
    EXPECT_EQ(Text(0, NumberMask::Thousands), "");
    EXPECT_EQ(Text(0.4, NumberMask::Thousands), "");
    EXPECT_EQ(Text(0, NumberMask::CalorieTotal), "");
}

TEST(Format, ThousandsAreSetApart) {
    EXPECT_EQ(Text(100, NumberMask::Thousands), "100");
    EXPECT_EQ(Text(1000, NumberMask::Thousands), "1,000");
    EXPECT_EQ(Text(123456, NumberMask::Thousands), "123,456");
    EXPECT_EQ(Text(1234567, NumberMask::Thousands), "1,234,567");
    EXPECT_EQ(Text(-1234, NumberMask::Thousands), "-1,234");
    EXPECT_EQ(Text(-123, NumberMask::Thousands), "-123");
    EXPECT_EQ(Text(12345.6, NumberMask::CalorieTotal), "12,346");
    EXPECT_EQ(Text(1e9, NumberMask::CalorieTotal), "1,000,000,000");
}

TEST(Format, PercentMultipliesByAHundred) {
    EXPECT_EQ(Text(0.154, NumberMask::Percent), "15%");
    EXPECT_EQ(Text(0, NumberMask::Percent), "0%");
    EXPECT_EQ(Text(0.004, NumberMask::Percent), "0%");
    EXPECT_EQ(Text(1, NumberMask::Percent), "100%");
    EXPECT_EQ(Text(123.45, NumberMask::Percent), "12,345%");
    EXPECT_EQ(Text(-0.5, NumberMask::Percent), "-50%");
}

TEST(Format, PercentRoundsHalvesOfTheDecimalText) {
    EXPECT_EQ(Text(0.145, NumberMask::Percent), "15%");
    EXPECT_EQ(Text(0.285, NumberMask::Percent), "29%");
    EXPECT_EQ(Text(0.005, NumberMask::Percent), "1%");
}

TEST(Format, WholeNumberHasNoSeparators) {
    EXPECT_EQ(Text(0, NumberMask::WholeNumber), "0");
    EXPECT_EQ(Text(1234.4, NumberMask::WholeNumber), "1234");
    EXPECT_EQ(Text(33.3, NumberMask::WholeNumber), "33");
}

TEST(Format, SeparatorsAreThoseOfTheLocale) {
    const InLocale german("de_DE");
    EXPECT_EQ(Text(1.5, NumberMask::UpToTwoDecimals), "1,5");
    EXPECT_EQ(Text(5, NumberMask::UpToTwoDecimals), "5,");
    EXPECT_EQ(Text(1234567, NumberMask::Thousands), "1.234.567");
    EXPECT_EQ(Text(123.45, NumberMask::Percent), "12.345%");
}

TEST(Format, SeparatorsFitTheDigitsWhereTheLocaleHasOthers) {
    for (const char* name : {"ar_EG", "fa_IR"}) {
        const InLocale locale(name);
        EXPECT_EQ(Format(3.56, NumberMask::UpToTwoDecimals), "3.56") << name;
        EXPECT_EQ(Format(1234, NumberMask::Thousands), "1,234") << name;
        EXPECT_EQ(PlainNumber(Format(1234, NumberMask::Thousands)), "1234") << name;
    }
}

TEST(PlainNumber, KeepsAPointAtMostInEveryLocale) {
    EXPECT_EQ(PlainNumber("1,234,567").toStdString(), "1234567");
    EXPECT_EQ(PlainNumber("-12.5").toStdString(), "-12.5");
    const InLocale german("de_DE");
    EXPECT_EQ(PlainNumber("1.234.567").toStdString(), "1234567");
    EXPECT_EQ(PlainNumber("12,5").toStdString(), "12.5");
    EXPECT_EQ(PlainNumber("5,").toStdString(), "5.");
}

TEST(Format, VeryLargeAndVerySmallValuesAreWrittenOut) {
    EXPECT_EQ(Text(1e21, NumberMask::WholeNumber), "1000000000000000000000");
    EXPECT_EQ(Text(1e-300, NumberMask::UpToTwoDecimals), "0.");
    EXPECT_EQ(Text(1.5e15, NumberMask::Thousands), "1,500,000,000,000,000");
}

TEST(Format, NamesWhatIsNotFinite) {
    EXPECT_EQ(Text(std::numeric_limits<double>::infinity(), NumberMask::Thousands), "inf");
    EXPECT_EQ(Text(std::nan(""), NumberMask::UpToTwoDecimals), "nan");
}

TEST(FormatShortDate, HasTwoDigitsForMonthAndDay) {
    EXPECT_EQ(FormatShortDate(QDate(2002, 3, 4)).toStdString(), "03/04/2002");
    EXPECT_EQ(FormatShortDate(QDate(2002, 12, 31)).toStdString(), "12/31/2002");
}

TEST(FormatLongDate, HasEnglishNamesInEveryLocale) {
    const InLocale german("de_DE");
    EXPECT_EQ(FormatLongDate(QDate(2002, 3, 4)).toStdString(), "Monday, March 04, 2002");
    EXPECT_EQ(FormatLongDate(QDate(2024, 2, 29)).toStdString(), "Thursday, February 29, 2024");
}

TEST(FormatDates, OfAnUnsetDateAreEmpty) {
    EXPECT_EQ(FormatShortDate(QDate()), QString());
    EXPECT_EQ(FormatLongDate(QDate()), QString());
}
