#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// The tables, made in numbered steps. A step is taken once for a database, however many servers
/// start on it at the same time, and is never changed after it has been delivered: a new shape is a
/// new step.
namespace Schema {
void BringUpToDate(Connection& connection);

/// Fails unless the database answers and has every step that this program knows.
void Check(Connection& connection);
} // namespace Schema

} // namespace exchange
