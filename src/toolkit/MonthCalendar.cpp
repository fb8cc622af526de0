#include "toolkit/MonthCalendar.h"

#include "runtime/Clock.h"
#include "toolkit/Style.h"

#include <QPainter>
#include <QTextCharFormat>

namespace {

constexpr int chosenFrame = 2;

void PaintChosen(QPainter* painter, const QRect& place) {
    const Style& style = TheStyle();
    QLinearGradient ground(place.topLeft(), place.bottomLeft());
    ground.setColorAt(0, style.chosenDay.from);
    ground.setColorAt(1, style.chosenDay.to);
    painter->fillRect(place, style.frame);
    painter->fillRect(place.adjusted(chosenFrame, chosenFrame, -chosenFrame, -chosenFrame), ground);
}

} // namespace

MonthCalendar::MonthCalendar(QWidget* parent)
    : QCalendarWidget(parent) {
    const Style& style = TheStyle();
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setDateEditEnabled(false);
    QTextCharFormat heads;
    heads.setBackground(style.navigation);
    heads.setForeground(style.windowInk);
    heads.setFont(style.smallStrong);
    setHeaderTextFormat(heads);
    for (const Qt::DayOfWeek weekend : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(weekend, QTextCharFormat());
}

void MonthCalendar::paintCell(QPainter* painter, const QRect& place, QDate date) const {
    const Style& style = TheStyle();
    const bool chosen = date == selectedDate();
    const bool ofMonth = date.month() == monthShown() && date.year() == yearShown();
    if (chosen)
        PaintChosen(painter, place);
    painter->save();
    painter->setFont(chosen || date == Clock::Today() ? style.strong : style.text);
    painter->setPen(ofMonth ? style.ink : style.disabledInk);
    painter->drawText(place, Qt::AlignCenter, QString::number(date.day()));
    painter->restore();
}
