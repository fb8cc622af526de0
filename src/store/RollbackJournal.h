#pragma once

#include <QString>

namespace SQLite {
class Database;
}

/// How every connection that writes keeps its changes safe.
///
/// A commit writes what it is about to change into a journal beside the file, then the file, and
/// then removes the journal: between two commits the file is all there is. Each of the three is
/// synced, the last one by a sync of the folder: without it a journal that was removed could be
/// back after a power cut, and a row that was acknowledged would be rolled back.
namespace RollbackJournal {
/// Takes in the `-wal` of an earlier version. Refuses a folder in which no journal can be made.
void Use(SQLite::Database& database, const QString& path);
} // namespace RollbackJournal
