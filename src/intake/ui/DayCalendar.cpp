#include "intake/ui/DayCalendar.h"

#include "drawing/Style.h"
#include "toolkit/MonthCalendar.h"

#include <QApplication>

static constexpr QSize CalendarSize(280, 212);

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

/// A child that has the focus is destroyed after this object: FollowFocus must not run then.
DayCalendar::~DayCalendar() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize DayCalendar::sizeHint() const {
    return CalendarSize + QSize(2, TheStyle().headerHeight + 2);
}

void DayCalendar::resizeEvent(QResizeEvent* event) {
    ucBox::resizeEvent(event);
    smCal_->setGeometry(Inner());
}

void DayCalendar::Open(QDate day, const QString& caption) {
    SetCaption(caption);
    smCal_->setAccessibleName(caption);
    show();
    raise();
    smCal_->setFocus();
    smCal_->setCurrentPage(day.year(), day.month());
    smCal_->setSelectedDate(day);
}

/// A click can raise both signals. Only the first counts.
void DayCalendar::OnPick(QDate day) {
    if (!isHidden())
        Q_EMIT Picked(day);
}

/// The menu of the months is a window of its own, but belongs to the panel.
bool DayCalendar::HasPart(const QObject* control) const {
    while (control && control != this)
        control = control->parent();
    return control;
}

/// `now` is null when another program comes to the front: the panel stays.
void DayCalendar::FollowFocus(QWidget*, QWidget* now) {
    if (now && !HasPart(now))
        hide();
}
