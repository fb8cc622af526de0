#include "toolkit/MonthCalendar.h"
#include "drawing/Style.h"
#include "runtime/Clock.h"
#include "support/HalvaneTest.h"

#include <QApplication>
#include <QTextCharFormat>

using MonthCalendarTest = HalvaneTest;

TEST_F(MonthCalendarTest, WeeksBeginOnSunday) {
    EXPECT_EQ(MonthCalendar().firstDayOfWeek(), Qt::Sunday);
}

TEST_F(MonthCalendarTest, GoesFromTheYear100To9999) {
    MonthCalendar calendar;
    calendar.show();
    EXPECT_EQ(calendar.minimumDate(), QDate(100, 1, 1));
    EXPECT_EQ(calendar.maximumDate(), QDate(9999, 12, 31));
    calendar.setCurrentPage(100, 1);
    Click(Find(&calendar, QStringLiteral("qt_calendar_prevmonth")));
    EXPECT_EQ(calendar.yearShown(), 100);
    calendar.setCurrentPage(9999, 12);
    Click(Find(&calendar, QStringLiteral("qt_calendar_nextmonth")));
    EXPECT_EQ(calendar.yearShown(), 9999);
}

TEST_F(MonthCalendarTest, TheChosenDayStandsInTheFrameBrown) {
    Clock::SetToday(QDate(2026, 11, 21));
    MonthCalendar calendar;
    calendar.resize(280, 210);
    calendar.setSelectedDate(QDate(2026, 11, 18));
    calendar.show();
    QApplication::processEvents();
    const QImage drawn = Grab(&calendar);
    int framed = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            framed += drawn.pixelColor(x, y) == TheStyle().frame;
    EXPECT_GT(framed, 100);
}

TEST_F(MonthCalendarTest, WeekendsLookLikeTheOtherDays) {
    const MonthCalendar calendar;
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        EXPECT_EQ(calendar.weekdayTextFormat(day), QTextCharFormat());
}
