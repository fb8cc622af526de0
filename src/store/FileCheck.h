#pragma once

#include "store/Connection.h"

/// Looks at a database file before it is opened for work, and changes nothing: not the file, and
/// not the folder that it is in. A refusal is a RuntimeError.
namespace FileCheck {
/// Whether changes wait beside the file in a journal, as a process leaves them that was killed.
bool HasJournal(const QString& path);

/// The file is there, a database, of that kind, of no newer version. Where no journal belongs to it
/// also: whole in length, its tables readable.
void Untouched(const QString& path, DatabaseKind kind);

/// The tables are readable, and of no newer version.
void Inside(SQLite::Database& database, const QString& path);
} // namespace FileCheck
