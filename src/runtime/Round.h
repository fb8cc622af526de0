#pragma once

#include <QtGlobal>

/// To the nearest 32-bit integer, ties to the even neighbour. Overflow (6) where it does not fit.
qint32 Round(double value);
