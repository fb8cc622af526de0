#pragma once

#include <QCalendarWidget>

class QSpinBox;

/// The platform's month calendar in the program's look: Sunday first, English names, heads in the
/// window's slate, the chosen day in a frame. It goes as far as dates do. Enter and Tab in the
/// field of the year take the year over, Escape drops it; the focus is then in the days.
class MonthCalendar : public QCalendarWidget {
    Q_OBJECT

public:
    explicit MonthCalendar(QWidget* parent = nullptr);

protected:
    void paintCell(QPainter* painter, const QRect& place, QDate date) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSpinBox* yearField_;
};
