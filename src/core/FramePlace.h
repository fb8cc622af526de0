#pragma once

#include <QPoint>
#include <QSize>

/// Where to put a window that was left at `wanted`: there, or in the middle of the primary screen
/// if its title would be out of reach.
QPoint PlaceOnScreens(QPoint wanted, QSize size, int titleHeight);
