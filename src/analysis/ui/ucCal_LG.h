#pragma once

#include "toolkit/DrawnControl.h"

#include <QDate>

#include <vector>

class DayCell;
class MonthGrid;
class QLabel;
class ucAALBL;
class ucCalButton;
class ucDropDown;
class ucHeader;

/// The calendar of one month. It marks the days with food and the days with a weight, with one
/// query each. A click on a day raises DayChosen. Another month or year moves the button to the
/// first day and raises only MonthChanged. It opens on today.
///
/// Arrow keys, Home and End move the focus between the days, Return clicks the day with the focus,
/// Page Up and Page Down turn the month.
class ucCal_LG : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QDate Date READ Date)

public:
    explicit ucCal_LG(QWidget* parent = nullptr);

    void getDate();      ///< shows the chosen day and its month anew
    void ShowDays();     ///< lays out the days of the month
    void PlaceToday();   ///< marks today, if the month is shown
    void ShowIcons();    ///< reads what is logged in the month and shows its icons
    void ResetButtons(); ///< takes the hover look off the chosen day
    void picDay_Click(int index);

    QDate Date() const { return date_; } ///< the chosen day, where the button is
    QDate FirstOfMonth() const;
    QDate LastOfMonth() const;
    QSize sizeHint() const override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::Grouping; }

Q_SIGNALS:
    void DayChosen(QDate date);
    void MonthChanged(QDate from, QDate to); ///< first and last day of the month now shown

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    struct Layout {
        QRect ucHead, aadate, ucMonth, ucYear, picCalBG;
    };

    void AddHead();
    ucDropDown* AddList(const QString& name, const QString& spoken);
    void FillLists();
    void AddGrid();
    void OpenOn(QDate today);
    Layout layoutRects() const;

    DayCell* CellAt(int day);
    void PlaceDays();
    void PlaceButton();
    void PrintDay(DayCell* cell, const QString& text);
    void PaintLabels();

    void OnMonth();
    void OnYear();
    void ShowMonth(QDate first);
    void TurnMonth(int months);
    int FocusedDay() const; ///< 0 if no day has the focus
    void FocusDay(int day, Qt::FocusReason reason);

    QDate date_;
    int lastYear_ = 0; ///< in the list
    QPoint lastMouse_{-1, -1};

    ucHeader* ucHead_;
    ucAALBL* aadate_;
    ucDropDown* ucMonth_;
    ucDropDown* ucYear_;
    MonthGrid* picCalBG_;
    ucCalButton* ucCalButton_;
    QLabel* lblToday_;
    std::vector<DayCell*> picDay_; ///< index: day of the month - 1; only grows
};
