#pragma once

#include "store/Connection.h"

#include <QString>

namespace SQLite {
class Database;
}

/// The tables, indexes and versions of both files.
namespace Schema {
inline constexpr int Version = 1;
inline constexpr int LastStockFood = 23508; ///< foods above this key are the user's own

/// Makes a new, empty file with the schema of its kind. Refuses (negative number) where a file is
/// there already.
void Create(const QString& path, DatabaseKind kind);

/// Brings an open older file up to this version by numbered steps, each in a transaction.
void Migrate(SQLite::Database& database, DatabaseKind kind);
} // namespace Schema
