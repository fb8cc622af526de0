#pragma once

#include "store/Connection.h"

#include <QString>

#include <span>

namespace SQLite {
class Database;
}

/// The tables, indexes and versions of both files.
namespace Schema {
inline constexpr int Version = 2;
inline constexpr int LastStockFood = 23508; ///< foods above this key are the user's own

/// What leads from one version to the next: the first step makes a new file, and what a step holds
/// is never changed once files made by it are out.
struct Step {
    const char* users;
    const char* foods;
};

/// Makes a new, empty file with the schema of its kind. Refuses (negative number) where a file is
/// there already.
void Create(const QString& path, DatabaseKind kind);

/// Brings an open older file up to this version by numbered steps, each in a transaction.
void Migrate(SQLite::Database& database, DatabaseKind kind);

/// The same with other steps: step n (from 0) leads from version n to n + 1.
void Migrate(SQLite::Database& database, DatabaseKind kind, std::span<const Step> steps);

/// The mark in the header of a file that tells its kind.
qint32 ApplicationId(DatabaseKind kind);
} // namespace Schema
