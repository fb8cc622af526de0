#include "store/UnchangedFile.h"

#include "store/StoreError.h"

#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

UnchangedFile::UnchangedFile(const QString& path, const QString& named)
    : named_(named.isEmpty() ? path : named) {
    StoreError::Guarded(named_, [&] {
        database_ = std::make_unique<SQLite::Database>(Address(path).toStdString(),
                                                       SQLite::OPEN_READONLY | SQLite::OPEN_URI |
                                                           SQLite::OPEN_NOMUTEX);
    });
}

UnchangedFile::~UnchangedFile() = default;

QByteArray UnchangedFile::Address(const QString& path) {
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded() + "?immutable=1";
}

qint64 UnchangedFile::Number(const QByteArray& select) {
    return StoreError::Guarded(
        named_, [&] { return qint64(database_->execAndGet(select.constData()).getInt64()); });
}

void UnchangedFile::RequireSoundRows() {
    const std::string first = StoreError::Guarded(named_, [&] {
        database_->exec("PRAGMA cache_size = 50"); // a walk over all pages needs few of them again
        return database_->execAndGet("PRAGMA quick_check(1)").getString();
    });
    if (first != "ok")
        throw StoreError::Make(SQLITE_CORRUPT, named_, QString::fromStdString(first));
}
