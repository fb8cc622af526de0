#pragma once

#include "analysis/Period.h"
#include "records/tables/RecordsTable.h"

#include <memory>

/// What the current user has logged.
namespace LoggedTables {
std::unique_ptr<RecordsTable> Log(const Period& period); ///< a row for each entry
/// A row for each day with entries: totals, targets, percents and coverage.
std::unique_ptr<RecordsTable> Days(const Period& period);
} // namespace LoggedTables
