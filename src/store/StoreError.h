#pragma once

#include "runtime/RuntimeError.h"

#include <SQLiteCpp/Exception.h>

struct sqlite3;

/// The one place where a failure of the store becomes a RuntimeError: the number is the negative of
/// the primary result code, the description names the file and says what a person can do.
namespace StoreError {
// Failures of result sets, found before the store is asked.
inline constexpr int CannotBeChanged = 3251;
inline constexpr int NoSuchColumn = 3265;
inline constexpr int NotOpen = 3704;
/// A journal beside a file is not of that file, or that cannot be told: the description is for the
/// person, who alone can decide.
inline constexpr int JournalDoesNotFit = 3343;

RuntimeError Make(int resultCode, const QString& path, const QString& detail);
RuntimeError From(const SQLite::Exception& failure, const QString& path);
RuntimeError From(sqlite3* database, const QString& path);

/// Runs `action`; what the store throws in it comes out as a RuntimeError.
template <class Action> auto Guarded(const QString& path, Action action) {
    try {
        return action();
    } catch (const SQLite::Exception& failure) {
        throw From(failure, path);
    }
}
} // namespace StoreError
