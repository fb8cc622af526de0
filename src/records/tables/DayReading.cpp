#include "records/tables/DayReading.h"

DayReading::DayReading(const Period& period)
    : log_(period)
    , more_(log_.Next()) {}

bool DayReading::Next() {
    if (!more_)
        return false;
    day_ = log_.Day();
    totals_ = {};
    do
        totals_.Add(log_);
    while ((more_ = log_.Next()) && log_.Day() == day_);
    return true;
}
