#pragma once

#include "records/Finding.h"
#include "store/Connection.h"

#include <QList>

namespace SQLite {
class Database;
}

/// The rows that a screen does not show, or shows with impossible figures.
namespace RowChecks {
/// Dates count as future from a year after `today` on.
QList<Finding> Run(SQLite::Database& database, DatabaseKind kind, const QString& today);
} // namespace RowChecks
