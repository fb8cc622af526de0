#pragma once

#include "records/Finding.h"
#include "store/Connection.h"

#include <QList>

namespace SQLite {
class Database;
}

/// The rows that a screen does not show, or shows with figures that no food has.
namespace RowChecks {
/// The amounts take as long as all else, so that they can be checked beside it.
enum class Part { Amounts, AllElse };

/// Walks each table of such a file once. Dates count as future from a year after `today` on.
QList<Finding> Run(SQLite::Database& database, DatabaseKind kind, Part part, const QString& today);
} // namespace RowChecks
