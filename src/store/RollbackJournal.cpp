#include "store/RollbackJournal.h"

#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
/// A change that is undone at once creates the journal but leaves the file as it is.
void TryJournal(SQLite::Database& database) {
    const std::string version = database.execAndGet("PRAGMA user_version").getString();
    SQLite::Transaction transaction(database);
    database.exec("PRAGMA user_version = " + version);
}

void SwitchToRollback(SQLite::Database& database) {
    if (database.execAndGet("PRAGMA journal_mode = DELETE").getString() != "delete")
        throw SQLite::Exception("its journal cannot be taken in", SQLITE_BUSY);
    TryJournal(database);
}
} // namespace

void RollbackJournal::Use(SQLite::Database& database, const QString& path) {
    try {
        SwitchToRollback(database);
    } catch (const SQLite::Exception& failure) {
        const int code = failure.getErrorCode();
        if (code != SQLITE_CANTOPEN && code != SQLITE_READONLY)
            throw;
        throw StoreError::Make(SQLITE_CANTOPEN, path,
                               QStringLiteral("its folder must allow writing, as a journal is kept "
                                              "beside it"));
    }
    SyncFully(database, "main");
}

void RollbackJournal::SyncFully(SQLite::Database& database, const char* schema) {
    database.exec(std::string("PRAGMA ") + schema + ".synchronous = EXTRA");
}
