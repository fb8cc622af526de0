#pragma once

#include "analysis/Period.h"
#include "records/tables/RecordsTable.h"

#include <memory>

/// Tables that show rows as the store holds them.
namespace StoredTables {
std::unique_ptr<RecordsTable> Weights(const Period& period); ///< that the current user has entered
std::unique_ptr<RecordsTable> Foods(const Period&);          ///< stock foods, then own foods
std::unique_ptr<RecordsTable> Recipes(const Period&); ///< with the sums over their ingredients
std::unique_ptr<RecordsTable> Profile(const Period&); ///< the current user, with the targets
} // namespace StoredTables
