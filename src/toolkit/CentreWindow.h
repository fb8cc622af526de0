#pragma once

#include <QPoint>

class QRect;
class QWidget;

/// Where a place has to be so that all of it is on the screen. Of a larger one the upper left corner
/// counts most.
QPoint WholeOnScreen(const QRect& place, const QRect& screen);

/// Centres a window over its owner's window, or as near to that as the screen shows all of it.
/// Without an owner: on the screen.
void CentreWindow(QWidget* window);
