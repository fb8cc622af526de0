#include "intake/ui/DayCalendar.h"

#include "toolkit/MonthCalendar.h"
#include "toolkit/Style.h"

#include <QApplication>

static constexpr QSize calendarSize(280, 212);

DayCalendar::DayCalendar(QWidget* parent)
    : ucBox(QStringLiteral("Select a date"), parent)
    , smCal_(new MonthCalendar(this)) {
    setObjectName(QStringLiteral("picCal"));
    setFocusPolicy(Qt::ClickFocus);
    smCal_->setObjectName(QStringLiteral("smCal"));
    smCal_->setAccessibleName(QStringLiteral("Select a date"));
    connect(smCal_, &QCalendarWidget::clicked, this, &DayCalendar::OnPick);
    connect(smCal_, &QCalendarWidget::activated, this, &DayCalendar::OnPick);
    connect(qApp, &QApplication::focusChanged, this, &DayCalendar::FollowFocus);
    hide();
}

/// The focus leaves a child that is destroyed after this part of the object is gone.
DayCalendar::~DayCalendar() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize DayCalendar::sizeHint() const {
    return calendarSize + QSize(2, TheStyle().headerHeight + 2);
}

void DayCalendar::resizeEvent(QResizeEvent* event) {
    ucBox::resizeEvent(event);
    smCal_->setGeometry(Inner());
}

void DayCalendar::Open(QDate day) {
    show();
    raise();
    smCal_->setFocus();
    smCal_->setCurrentPage(day.year(), day.month());
    smCal_->setSelectedDate(day);
}

/// A click can come with an activation: the first of the two counts.
void DayCalendar::OnPick(QDate day) {
    if (!isHidden())
        Q_EMIT Picked(day);
}

/// The menu of the months is a window of its own, and yet a part.
bool DayCalendar::HasPart(const QObject* control) const {
    while (control && control != this)
        control = control->parent();
    return control;
}

/// Another program in front leaves the focus where it is.
void DayCalendar::FollowFocus(QWidget*, QWidget* now) {
    if (now && !HasPart(now))
        hide();
}
