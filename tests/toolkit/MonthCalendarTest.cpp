#include "toolkit/MonthCalendar.h"
#include "runtime/Clock.h"
#include "support/HalvaneTest.h"
#include "toolkit/Style.h"

#include <QApplication>
#include <QTextCharFormat>

using MonthCalendarTest = HalvaneTest;

TEST_F(MonthCalendarTest, WeeksBeginOnSunday) {
    EXPECT_EQ(MonthCalendar().firstDayOfWeek(), Qt::Sunday);
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
