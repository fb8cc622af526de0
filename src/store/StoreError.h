#pragma once

#include "runtime/RuntimeError.h"

#include <SQLiteCpp/Exception.h>

struct sqlite3;

/// Turns every failure of the store into a RuntimeError: its number is the negative of the primary
/// result code, its description names the file and says what the user can do.
namespace StoreError {
RuntimeError Make(int resultCode, const QString& path, const QString& detail);
RuntimeError From(const SQLite::Exception& failure, const QString& path);
RuntimeError From(sqlite3* database, const QString& path);

/// Runs `action` and turns the store's exceptions into RuntimeErrors.
template <class Action> auto Guarded(const QString& path, Action action) {
    try {
        return action();
    } catch (const SQLite::Exception& failure) {
        throw From(failure, path);
    }
}
} // namespace StoreError
