#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// The tables, made in numbered steps. Each step runs once on a database, even if several servers
/// start at the same time. A released step never changes: each change of the tables is a new step.
namespace Schema {
void BringUpToDate(Connection& connection);

/// Fails unless the database answers and has every step that this program knows.
void Check(Connection& connection);
} // namespace Schema

} // namespace exchange
