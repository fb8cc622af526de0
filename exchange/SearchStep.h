#pragma once

#include "exchange/Connection.h"

namespace exchange {

/// Gives each public recipe a place in the list, in the order in which recipes were sent, and makes
/// it found by the database's own search. The order is no longer that of the clock: a clock that
/// was wrong for a while would keep what was sent then on top for good.
namespace SearchStep {
void Take(Connection& connection);
} // namespace SearchStep

} // namespace exchange
