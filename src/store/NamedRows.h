#pragma once

#include "runtime/NameOrder.h"

class Connection;

/// The name and the key of every row, for a list in which a person looks a name up.
namespace NamedRows {
/// Reads the rows of a statement in the dialect that gives a name and a key, and skips those
/// without a sound key. The result is in the order of the names.
QList<NamedKey> Sorted(Connection& connection, const QString& source);
} // namespace NamedRows
