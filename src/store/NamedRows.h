#pragma once

#include "runtime/NameOrder.h"

class Recordset;

/// The name and the key of every row, for a list in which a person looks a name up.
namespace NamedRows {
/// Walks the set to its end and skips rows without a sound key. The result is in the order of the
/// names.
QList<NamedKey> Sorted(Recordset& rows, const QString& nameColumn, const QString& keyColumn);
} // namespace NamedRows
