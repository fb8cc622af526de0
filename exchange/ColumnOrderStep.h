#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// Reorders the nutrients of tables and stored documents as in the program's own table, by name,
/// and allows nulls in a recipe. The documents get new column names, so that an older server fails
/// instead of mixing up nutrients.
namespace ColumnOrderStep {
void Take(Connection& connection);
} // namespace ColumnOrderStep

} // namespace exchange
