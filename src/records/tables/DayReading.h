#pragma once

#include "records/tables/IntakeTotals.h"
#include "records/tables/LogReading.h"

/// Walks the days of a period on which the current user has logged something, with their totals.
class DayReading {
public:
    explicit DayReading(const Period& period);

    bool Next();
    QDate Day() const { return day_; }
    const IntakeTotals& Totals() const { return totals_; }

private:
    LogReading log_;
    bool more_; ///< the log stands on the first entry of the next day
    QDate day_;
    IntakeTotals totals_;
};
