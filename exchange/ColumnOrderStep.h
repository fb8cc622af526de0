#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// Brings the nutrients of tables and stored documents into the order of the program's own table,
/// by name, and lets a recipe have nulls. The documents get new column names, so that a server from
/// before this step fails on them and mixes nothing up.
namespace ColumnOrderStep {
void Take(Connection& connection);
} // namespace ColumnOrderStep

} // namespace exchange
