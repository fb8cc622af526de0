#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// Gives each public recipe a place in the list, in the order of sending, and indexes it for the
/// full text search of the database. The list is not ordered by time, since a recipe that was sent
/// while the clock was wrong would stay on top forever.
namespace SearchStep {
void Take(Connection& connection);
} // namespace SearchStep

} // namespace exchange
