#pragma once

#include <QDate>

/// Today, for the whole program. A test sets it.
namespace Clock {
QDate Today();
void SetToday(QDate today);
void UseSystemClock();
} // namespace Clock
