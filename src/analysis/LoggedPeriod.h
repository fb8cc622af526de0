#pragma once

#include "analysis/Period.h"
#include "model/Nuts.h"

#include <optional>

/// What the current user has logged in a period. It is read when a chart first asks, in one pass,
/// so charts of the same period share it.
class LoggedPeriod {
public:
    explicit LoggedPeriod(const Period& period)
        : period_(period) {}

    const Period& Dates() const { return period_; }
    /// Empty if no food was logged, or none whose calories are known; other unknown amounts count
    /// as 0.
    const std::optional<Nuts>& Sums();
    int Days();                          ///< with food
    std::optional<Nuts> AverageEnergy(); ///< as LoggedSums::AverageEnergy

private:
    struct Log {
        std::optional<Nuts> sums;
        int days;
    };
    const Log& Read();

    Period period_;
    std::optional<Log> log_;
};
