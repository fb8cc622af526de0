#include "store/DatabaseCopy.h"

#include "store/StoreError.h"
#include "store/UnchangedFile.h"

#include <QFileInfo>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int BusyMilliseconds = 5000; ///< how long to wait for a commit of another process
constexpr int AllPages = -1;
constexpr int PagesAtOnce = 1024; ///< the source is free for a writer after each so many pages
constexpr int MostRestarts = 10;
/// Each page is read and written once: to keep many of them only takes time.
constexpr auto FewPages = "PRAGMA cache_size = 50";
constexpr auto NoSafety = "PRAGMA synchronous = OFF; PRAGMA journal_mode = OFF";

/// A folder that does not allow writing holds nobody's journal, so its file does not change.
SQLite::Database Source(const QString& path) {
    const QFileInfo file(path);
    if (file.isWritable() && QFileInfo(file.path()).isWritable())
        return {path.toStdString(), SQLite::OPEN_READWRITE, BusyMilliseconds};
    return {UnchangedFile::Address(path).toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_URI};
}

/// If another connection writes between two steps, the copy begins again. If that happens too
/// often, the writer waits until all pages are copied.
int CopyAllPages(SQLite::Backup& backup) {
    int restarts = 0;
    for (int left = 0;;) {
        const int result = backup.executeStep(restarts < MostRestarts ? PagesAtOnce : AllPages);
        if (result != SQLITE_OK)
            return result;
        if (left > 0 && backup.getRemainingPageCount() >= left)
            ++restarts;
        left = backup.getRemainingPageCount();
    }
}
} // namespace

void DatabaseCopy::Make(const QString& from, const QString& to) {
    StoreError::Guarded(from, [&] {
        SQLite::Database source = Source(from);
        source.exec(FewPages);
        StoreError::Guarded(to, [&] {
            SQLite::Database target(to.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                    BusyMilliseconds);
            target.exec(NoSafety);
            target.exec(FewPages);
            SQLite::Backup backup(target, source);
            const int result = CopyAllPages(backup);
            if (result == SQLITE_BUSY) // only the source can be in use elsewhere
                throw StoreError::Make(result, from, {});
            if (result != SQLITE_DONE)
                throw SQLite::Exception(target.getHandle(), result);
        });
    });
}
