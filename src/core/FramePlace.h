#pragma once

#include <QPoint>
#include <QSize>

/// Where a window of that size stands that was left at `wanted`: there, or in the middle of the
/// primary screen where its title could not be reached on any screen.
QPoint PlaceOnScreens(QPoint wanted, QSize size, int titleHeight);
