#pragma once

#include <QCalendarWidget>

class QSpinBox;

/// The platform's month calendar in the program's look: weeks begin on Sunday, English names, a
/// frame around the chosen day. It covers all dates of Dates. In the field of the year, Enter and
/// Tab accept the year and Escape drops it; each moves the focus to the days.
class MonthCalendar : public QCalendarWidget {
    Q_OBJECT

public:
    explicit MonthCalendar(QWidget* parent = nullptr);

    QDate DateAt(int week, int column) const; ///< of the six weeks that are shown
    bool Offers(QDate day) const;             ///< it can be chosen
    void Choose(QDate day);                   ///< as a click does, if it can be chosen

protected:
    void paintCell(QPainter* painter, const QRect& place, QDate date) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NameParts(); ///< for assistive tools

    QSpinBox* yearField_;
};
