#pragma once

#include <QtGlobal>

/// To the nearest 32-bit integer, ties to the even neighbour. Overflow (6) where it does not fit.
qint32 Round(double value);

/// The same for figures that are only shown: beyond the bounds it is the bound, and 0 for what is
/// no number. A figure that cannot be shown in full must not keep a screen from opening.
qint32 RoundForDisplay(double value);
