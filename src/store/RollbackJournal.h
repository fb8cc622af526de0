#pragma once

#include <QString>

namespace SQLite {
class Database;
}

/// The way in which every writing connection protects its changes.
///
/// A commit writes the old pages into a journal beside the file, then the file, and then removes
/// the journal: between two commits only the file exists. Each step is synced. The last one syncs
/// the folder: otherwise a removed journal could come back after a power cut and undo an
/// acknowledged row.
namespace RollbackJournal {
/// Rolls in the `-wal` of an earlier version. Fails if the folder does not allow a journal.
void Use(SQLite::Database& database, const QString& path);
/// Syncs each step of a commit to the file that is attached under that name.
void SyncFully(SQLite::Database& database, const char* schema);
} // namespace RollbackJournal
