#include "core/CurrentDay.h"

#include "runtime/AppState.h"
#include "runtime/Clock.h"

void EnsureCurrentDate() {
    const QDate firstThatCounts(1992, 12, 1);
    QDate& day = App().CurrentDate;
    if (!day.isValid() || day < firstThatCounts)
        day = Clock::Today();
}
