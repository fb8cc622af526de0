#pragma once

#include "analysis/Period.h"

class Command;

/// The options `--from` and `--to` of a command.
class PeriodOption {
public:
    /// Adds both; this must live as long as the command.
    void AddTo(const Command& command, const std::string& of); ///< "entries"

    bool IsGiven() const { return given_.from.isValid() || given_.to.isValid(); }
    /// What is not given is taken from `otherwise`. A last day before the first is a usage error.
    Period Chosen(const Period& otherwise) const;

private:
    Period given_;
};
