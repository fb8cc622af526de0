#pragma once

#include <QDate>

/// The present day, as the whole program sees it. A test sets it.
namespace Clock {
QDate Today();
void SetToday(QDate today);
void UseSystemClock();
} // namespace Clock
