#pragma once

#include "toolkit/SpokenGrid.h"

#include <QAccessibleWidget>

#include <map>

class MonthCalendar;

/// What assistive tools see of the days of a month calendar: a table of six weeks below the names
/// of the weekdays. A cell tells its whole date and whether it is chosen, and its press chooses it.
class SpokenDays : public QAccessibleWidget, public SpokenGrid {
public:
    explicit SpokenDays(QWidget* view);
    ~SpokenDays() override;

    /// For all month calendars. Called before the first is made: the base class of a calendar tells
    /// tools of its view before the calendar is whole.
    static void Install();

    MonthCalendar* Calendar() const; ///< null while it is made and while it is destroyed

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* cellAt(int week, int column) const override;
    int rowCount() const override;
    int columnCount() const override;
    QString columnDescription(int column) const override;
    QList<QAccessibleInterface*> selectedCells() const override;

private:
    QAccessibleInterface* At(int week, int column) const; ///< week -1 holds the weekdays

    mutable std::map<std::pair<int, int>, QAccessible::Id> ids_;
};
