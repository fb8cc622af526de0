#pragma once

#include "intake/LoggedEntries.h"

#include <QObject>

class QMenu;
class QWidget;
class ucAte;
class ucMyFood;

/// The context menu of the day screen: what can be done with a line, with a meal, or with the whole
/// day. The list does it; what needs the screen is a signal.
class DayMenu : public QObject {
    Q_OBJECT

public:
    explicit DayMenu(ucMyFood* list);

    void Fill(QMenu& menu, QWidget* target);

Q_SIGNALS:
    void CopyDayAsked(const LoggedEntries& foods); ///< the day to copy them to is to be chosen
    void AddAsked(int meal);

private:
    void AddLine(QMenu& menu, ucAte* line);
    void AddMeal(QMenu& menu, int meal);
    void AddDay(QMenu& menu);
    void AddCopies(QMenu& menu, const LoggedEntries& foods, bool any);
    void AddMoves(QMenu& menu, const LoggedEntries& foods, int meal, bool any);
    void AddUndo(QMenu& menu);

    ucMyFood* list_;
};
