#include "store/DatabaseCopy.h"

#include "store/RollbackJournal.h"
#include "store/StoreError.h"

#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int BusyMilliseconds = 5000; ///< a commit of another process is awaited this long
constexpr int AllPages = -1;

/// A folder that does not allow writing holds nobody's journal, so its file does not change.
SQLite::Database Source(const QString& path) {
    const QFileInfo file(path);
    if (file.isWritable() && QFileInfo(file.path()).isWritable())
        return {path.toStdString(), SQLite::OPEN_READWRITE, BusyMilliseconds};
    const QByteArray address = QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded();
    return {address.toStdString() + "?immutable=1", SQLite::OPEN_READONLY | SQLite::OPEN_URI};
}

void Prepare(SQLite::Database& target, DatabaseCopy::Sync sync) {
    if (sync == DatabaseCopy::Sync::Fully)
        RollbackJournal::SyncFully(target, "main");
    else
        target.exec("PRAGMA synchronous = OFF");
}
} // namespace

void DatabaseCopy::Make(const QString& from, const QString& to, Sync sync) {
    StoreError::Guarded(from, [&] {
        SQLite::Database source = Source(from);
        StoreError::Guarded(to, [&] {
            SQLite::Database target(to.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                    BusyMilliseconds);
            Prepare(target, sync);
            const int result = SQLite::Backup(target, source).executeStep(AllPages);
            if (result != SQLITE_DONE)
                throw SQLite::Exception(target.getHandle(), result);
        });
    });
}
