#include "toolkit/MonthCalendar.h"

#include "drawing/Style.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "toolkit/SpokenDays.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSpinBox>
#include <QTextCharFormat>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int ChosenFrame = 2;
constexpr int DaysInWeek = 7;

/// The keys that end typing a year.
constexpr int LeavingKeys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab,
                               Qt::Key_Escape};

void PaintChosen(QPainter* painter, const QRect& place) {
    const Style& style = TheStyle();
    QLinearGradient ground(place.topLeft(), place.bottomLeft());
    ground.setColorAt(0, style.chosenDay.from);
    ground.setColorAt(1, style.chosenDay.to);
    painter->fillRect(place, style.frame);
    painter->fillRect(place.adjusted(ChosenFrame, ChosenFrame, -ChosenFrame, -ChosenFrame), ground);
}

} // namespace

MonthCalendar::MonthCalendar(QWidget* parent)
    : QCalendarWidget((SpokenDays::Install(), parent))
    , yearField_(findChild<QSpinBox*>(QStringLiteral("qt_calendar_yearedit"))) {
    const Style& style = TheStyle();
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setDateEditEnabled(false);
    setDateRange(Dates::First(), Dates::Last());
    yearField_->installEventFilter(this);
    QTextCharFormat heads;
    heads.setBackground(style.navigation);
    heads.setForeground(style.windowInk);
    heads.setFont(style.smallStrong);
    setHeaderTextFormat(heads);
    for (const Qt::DayOfWeek weekend : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(weekend, QTextCharFormat());
    NameParts();
}

void MonthCalendar::NameParts() {
    constexpr std::pair<const char*, const char*> names[] = {
        {"qt_calendar_prevmonth", "Month before"},
        {"qt_calendar_nextmonth", "Month after"},
        {"qt_calendar_yearedit", "Year"},
        {"qt_calendar_calendarview", "Days"}};
    for (const auto& [part, name] : names)
        if (auto* control = findChild<QWidget*>(QLatin1String(part)))
            control->setAccessibleName(QLatin1String(name));
}

/// A month that begins on Sunday stands below a week of the month before.
QDate MonthCalendar::DateAt(int week, int column) const {
    const QDate first(yearShown(), monthShown(), 1);
    const int before = Dates::Weekday(first) - 1;
    return first.addDays(week * DaysInWeek + column - (before == 0 ? DaysInWeek : before));
}

bool MonthCalendar::Offers(QDate day) const {
    return isEnabled() && day >= minimumDate() && day <= maximumDate();
}

void MonthCalendar::Choose(QDate day) {
    if (!Offers(day))
        return;
    setSelectedDate(day);
    Q_EMIT activated(day);
}

/// When the year's field closes, its focus must go to the days, or it would leave the calendar.
bool MonthCalendar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != yearField_ || event->type() != QEvent::KeyPress)
        return QCalendarWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (std::find(std::begin(LeavingKeys), std::end(LeavingKeys), key) == std::end(LeavingKeys))
        return false;
    if (key == Qt::Key_Escape)
        yearField_->setValue(yearShown());
    setFocus(Qt::OtherFocusReason);
    return true;
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
