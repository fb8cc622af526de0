#pragma once

#include "store/Connection.h"

/// Looks at a database file before it is opened for work, and changes nothing: not the file, and
/// not the folder that it is in. A refusal is a RuntimeError.
namespace FileCheck {
/// Whether changes wait beside the file in a journal, as a process leaves them that was killed.
bool HasJournal(const QString& path);

/// The header: the file is there, a database, of that kind and of no newer version.
void Header(const QString& path, DatabaseKind kind);

/// The inside: whole in length, its tables readable, of no newer version.
void Inside(SQLite::Database& database, const QString& path);

/// Both, with the file opened for reading alone where no journal belongs to it.
void Untouched(const QString& path, DatabaseKind kind);
} // namespace FileCheck
