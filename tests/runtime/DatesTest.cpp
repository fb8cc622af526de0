#include "runtime/Dates.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {
void ExpectDate(const char* text, QDate date) {
    EXPECT_EQ(Dates::Parse(QString::fromUtf8(text)), date) << text;
    EXPECT_TRUE(Dates::IsDate(QString::fromUtf8(text))) << text;
}

void ExpectNoDate(const char* text) {
    EXPECT_TRUE(Dates::Parse(QString::fromUtf8(text)).isNull()) << text;
    EXPECT_FALSE(Dates::IsDate(QString::fromUtf8(text))) << text;
}
} // namespace

TEST(Dates, AreReadMonthFirst) {
    ExpectDate("3/4/2002", QDate(2002, 3, 4));
    ExpectDate("03/04/2002", QDate(2002, 3, 4));
    ExpectDate("12-31-1999", QDate(1999, 12, 31));
    ExpectDate("  4/3/2002  ", QDate(2002, 4, 3));
}

TEST(Dates, AreReadMonthFirstInEveryLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ExpectDate("3/4/2002", QDate(2002, 3, 4));
    ExpectNoDate("4.3.2002");
    QLocale::setDefault(before);
}

TEST(Dates, AreReadYearFirstWithDashes) {
    ExpectDate("2002-03-04", QDate(2002, 3, 4));
    ExpectDate("2002-3-4", QDate(2002, 3, 4));
    ExpectNoDate("2002-13-01");
    ExpectNoDate("02-2002-01");
}

TEST(Dates, NeverSwapDayAndMonth) {
    ExpectNoDate("13/4/2002");
    ExpectNoDate("31/12/2002");
    ExpectNoDate("2002-31-12");
}

TEST(Dates, TwoDigitYearsLieBetween1930And2029) {
    ExpectDate("1/1/00", QDate(2000, 1, 1));
    ExpectDate("1/1/29", QDate(2029, 1, 1));
    ExpectDate("1/1/30", QDate(1930, 1, 1));
    ExpectDate("1/1/99", QDate(1999, 1, 1));
    ExpectDate("Mar 4, 02", QDate(2002, 3, 4));
}

TEST(Dates, YearsHaveTwoOrFourDigits) {
    ExpectNoDate("1/1/2");
    ExpectNoDate("1/1/202");
    ExpectNoDate("1/1/20021");
}

TEST(Dates, YearsRunFrom100To9999) {
    ExpectDate("1/1/0100", QDate(100, 1, 1));
    ExpectNoDate("12/31/0099");
    ExpectNoDate("1/1/0000");
    ExpectDate("12/31/9999", QDate(9999, 12, 31));
}

TEST(Dates, MonthNamesAreRead) {
    ExpectDate("March 4, 2002", QDate(2002, 3, 4));
    ExpectDate("March 4,2002", QDate(2002, 3, 4));
    ExpectDate("4 March 2002", QDate(2002, 3, 4));
    ExpectDate("4 March, 2002", QDate(2002, 3, 4));
    ExpectDate("Mar 4 2002", QDate(2002, 3, 4));
    ExpectDate("4-Mar-2002", QDate(2002, 3, 4));
    ExpectDate("SEPTEMBER 30, 2001", QDate(2001, 9, 30));
    ExpectDate("dec  31  1999", QDate(1999, 12, 31));
}

TEST(Dates, EachMonthHasAWholeAndAShortName) {
    for (int month = 1; month <= 12; ++month) {
        const QString name = Dates::MonthName(month);
        EXPECT_EQ(Dates::Parse(QString(name + " 4, 2002")), QDate(2002, month, 4));
        EXPECT_EQ(Dates::Parse(QString(name.left(3) + " 4, 2002")), QDate(2002, month, 4));
    }
}

TEST(Dates, OtherWordsAreNoMonths) {
    for (const char* text : {"Marc 4, 2002", "Ma 4, 2002", "Foo 4, 2002", "Monday 4 2002",
                             "März 4, 2002", "0 4 2002", "March 2002", "March 4", "March4,2002"})
        ExpectNoDate(text);
}

TEST(Dates, DaysEndWithTheirMonth) {
    ExpectDate("4/30/2002", QDate(2002, 4, 30));
    ExpectNoDate("4/31/2002");
    ExpectNoDate("June 31, 2002");
    ExpectNoDate("1/32/2002");
    ExpectNoDate("1/0/2002");
    ExpectNoDate("0/1/2002");
}

TEST(Dates, LeapDaysStandInLeapYearsOnly) {
    ExpectDate("2/29/2000", QDate(2000, 2, 29));
    ExpectDate("2/29/2004", QDate(2004, 2, 29));
    ExpectNoDate("2/29/1900");
    ExpectNoDate("2/29/2002");
    ExpectNoDate("2/29/2100");
}

TEST(Dates, OtherTextIsNoDate) {
    for (const char* text : {"", " ", "abc", "12", "3/4", "3/4/2002 10:00", "3/4-2002", "3//4/2002",
                             "3/4/2002/5", "-3/4/2002", "3.4.2002", "20020304", "３/4/2002",
                             "123/4/2002", "2002/03/04", "1e1/1/2002"})
        ExpectNoDate(text);
    EXPECT_FALSE(Dates::IsDate(QStringView(u"3/4/2002\0", 9)));
    EXPECT_FALSE(Dates::IsDate(QString(QString(10000, u'1'))));
}

TEST(Dates, ShortTextReadsBackAsTheSameDay) {
    EXPECT_EQ(Dates::ShortText(QDate(2002, 4, 3)).toStdString(), "4/3/2002");
    EXPECT_EQ(Dates::ShortText(QDate(2002, 12, 31)).toStdString(), "12/31/2002");
    EXPECT_EQ(Dates::ShortText(QDate()), QString());
    for (QDate date :
         {QDate(100, 1, 1), QDate(1900, 2, 28), QDate(1929, 5, 6), QDate(9999, 12, 31)})
        EXPECT_EQ(Dates::Parse(Dates::ShortText(date)), date);
}

TEST(Dates, ShortTextHasFourDigitsOfTheYear) {
    EXPECT_EQ(Dates::ShortText(QDate(100, 1, 1)), "1/1/0100");
    EXPECT_EQ(Dates::ShortText(QDate(202, 3, 4)), "3/4/0202");
    EXPECT_EQ(Dates::ShortText(QDate(999, 3, 4)), "3/4/0999");
    EXPECT_EQ(Dates::ShortText(QDate(1000, 3, 4)), "3/4/1000");
    EXPECT_EQ(Dates::ShortText(QDate(9999, 12, 31)), "12/31/9999");
    for (const QDate day : {Dates::First(), QDate(202, 3, 4), QDate(500, 12, 31), Dates::Last()})
        EXPECT_EQ(Dates::Parse(Dates::ShortText(day)), day);
}

TEST(Dates, FirstAndLastAreTheOutermostThatAreRead) {
    EXPECT_EQ(Dates::First(), QDate(100, 1, 1));
    EXPECT_EQ(Dates::Last(), QDate(9999, 12, 31));
    EXPECT_FALSE(Dates::IsDate(Dates::ShortText(Dates::First().addDays(-1))));
}

TEST(Dates, DaysBetweenCountsBothWays) {
    EXPECT_EQ(Dates::DaysBetween(QDate(2002, 3, 4), QDate(2002, 3, 4)), 0);
    EXPECT_EQ(Dates::DaysBetween(QDate(2002, 2, 28), QDate(2002, 3, 1)), 1);
    EXPECT_EQ(Dates::DaysBetween(QDate(2004, 2, 28), QDate(2004, 3, 1)), 2);
    EXPECT_EQ(Dates::DaysBetween(QDate(2003, 1, 1), QDate(2002, 1, 1)), -365);
    EXPECT_EQ(Dates::DaysBetween(QDate(1900, 1, 1), QDate(2000, 1, 1)), 36524);
}

TEST(Dates, AddDaysCrossesMonthsAndYears) {
    EXPECT_EQ(Dates::AddDays(QDate(2002, 12, 31), 1), QDate(2003, 1, 1));
    EXPECT_EQ(Dates::AddDays(QDate(2004, 3, 1), -1), QDate(2004, 2, 29));
    EXPECT_EQ(Dates::AddDays(QDate(2002, 3, 4), 0), QDate(2002, 3, 4));
}

TEST(Dates, AddMonthsEndsAtTheLastDayWhereTheDayIsMissing) {
    EXPECT_EQ(Dates::AddMonths(QDate(2002, 1, 31), 1), QDate(2002, 2, 28));
    EXPECT_EQ(Dates::AddMonths(QDate(2004, 1, 31), 1), QDate(2004, 2, 29));
    EXPECT_EQ(Dates::AddMonths(QDate(2002, 12, 15), 1), QDate(2003, 1, 15));
    EXPECT_EQ(Dates::AddMonths(QDate(2002, 3, 31), -1), QDate(2002, 2, 28));
    EXPECT_EQ(Dates::AddMonths(QDate(2004, 2, 29), 12), QDate(2005, 2, 28));
}

TEST(Dates, WeekdaysBeginWithSunday) {
    EXPECT_EQ(Dates::Weekday(QDate(2002, 3, 3)), 1);
    EXPECT_EQ(Dates::Weekday(QDate(2002, 3, 4)), 2);
    EXPECT_EQ(Dates::Weekday(QDate(2002, 3, 9)), 7);
}

TEST(Dates, NamesAreEnglish) {
    EXPECT_EQ(Dates::MonthName(1).toStdString(), "January");
    EXPECT_EQ(Dates::MonthName(12).toStdString(), "December");
    EXPECT_EQ(Dates::WeekdayName(1).toStdString(), "Sunday");
    EXPECT_EQ(Dates::WeekdayName(7).toStdString(), "Saturday");
}

TEST(Dates, NumbersWithoutANameGiveEmptyText) {
    for (int number : {-1, 0, 13})
        EXPECT_EQ(Dates::MonthName(number), QString());
    for (int number : {-1, 0, 8})
        EXPECT_EQ(Dates::WeekdayName(number), QString());
}

TEST(Dates, LastOfMonthKnowsLeapYears) {
    EXPECT_EQ(Dates::LastOfMonth(QDate(2002, 2, 1)), QDate(2002, 2, 28));
    EXPECT_EQ(Dates::LastOfMonth(QDate(2000, 2, 29)), QDate(2000, 2, 29));
    EXPECT_EQ(Dates::LastOfMonth(QDate(1900, 2, 5)), QDate(1900, 2, 28));
    EXPECT_EQ(Dates::LastOfMonth(QDate(2002, 12, 31)), QDate(2002, 12, 31));
}
