#pragma once

#include "runtime/NameOrder.h"

class Recordset;

/// The name and the key of every row, for a list in which a person looks a name up.
namespace NamedRows {
/// Walks a set of a name and a key to its end and skips rows without a sound key. The result is in
/// the order of the names.
QList<NamedKey> Sorted(Recordset& rows);
} // namespace NamedRows
