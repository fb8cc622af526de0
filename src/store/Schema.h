#pragma once

#include "store/Connection.h"

#include <QString>

#include <span>

namespace SQLite {
class Database;
}

/// The tables, indexes and versions of both files.
namespace Schema {
inline constexpr int Version = 3;
/// FOODS, USER_FOODS and Ingredients hold an amount at each position from 1 to this one. The next
/// column is not an amount.
inline constexpr int StoredAmounts = 31;
/// Files of this version on hold all that is read; what came later is derived from it.
inline constexpr int OldestReadable = 2;
inline constexpr int LastStockFood = 23508; ///< foods above this key are the user's own

/// The statements from one version to the next. The first step creates a new file. A step never
/// changes once files made by it are in use.
struct Step {
    const char* users;
    const char* foods;
};

/// Creates a new file with the schema of its kind. Fails (negative number) if a file exists.
void Create(const QString& path, DatabaseKind kind);

/// Updates an open older file to this version by numbered steps, each in a transaction.
void Migrate(SQLite::Database& database, DatabaseKind kind);

/// The same with other steps: step n (from 0) leads from version n to n + 1.
void Migrate(SQLite::Database& database, DatabaseKind kind, std::span<const Step> steps);

/// Whether a file of this version can be read without an update.
bool CanBeRead(int version);

/// The mark of a kind in the header of a file.
qint32 ApplicationId(DatabaseKind kind);
} // namespace Schema
