#pragma once

#include <QCalendarWidget>

/// The platform's month calendar in the program's look: Sunday first, English names, heads in the
/// window's slate, the chosen day in a frame.
class MonthCalendar : public QCalendarWidget {
    Q_OBJECT

public:
    explicit MonthCalendar(QWidget* parent = nullptr);

protected:
    void paintCell(QPainter* painter, const QRect& place, QDate date) const override;
};
