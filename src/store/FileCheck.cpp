#include "store/FileCheck.h"

#include "store/Schema.h"
#include "store/StoreError.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QtEndian>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
// Places in the header of a file, which every version of the format keeps.
constexpr int HeaderLength = 100;
constexpr int PageSizeAt = 16;
constexpr int PageCountAt = 28;
constexpr int VersionAt = 60;
constexpr int ApplicationIdAt = 68;
constexpr char Magic[] = "SQLite format 3"; // 16 bytes with its NUL

[[noreturn]] void Refuse(int code, const QString& path, const char* why) {
    throw StoreError::Make(code, path, QString::fromLatin1(why));
}

QByteArray ReadHeader(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        Refuse(SQLITE_CANTOPEN, path, "it is not there");
    if (!info.isFile())
        Refuse(SQLITE_CANTOPEN, path, "it is not a file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Refuse(SQLITE_CANTOPEN, path, "reading it is not allowed");
    return file.read(HeaderLength);
}

qint32 NumberAt(const QByteArray& header, int place) {
    return qFromBigEndian<qint32>(header.constData() + place);
}

void CheckVersion(int version, const QString& path) {
    if (version > Schema::Version)
        Refuse(SQLITE_NOTADB, path, "it was made by a newer version of the program");
}

void CheckHeader(const QByteArray& header, const QString& path, DatabaseKind kind) {
    if (header.isEmpty())
        Refuse(SQLITE_NOTADB, path, "it is empty");
    if (!header.startsWith(QByteArrayView(Magic, sizeof Magic)))
        Refuse(SQLITE_NOTADB, path, "it is not a database");
    if (header.size() < HeaderLength)
        Refuse(SQLITE_CORRUPT, path, "its end is missing");
    if (NumberAt(header, ApplicationIdAt) != Schema::ApplicationId(kind))
        Refuse(SQLITE_NOTADB, path, "it is a database of another kind");
    CheckVersion(NumberAt(header, VersionAt), path);
}

/// The store takes a last page that is cut for a full one; the header tells the true length.
void CheckLength(const QByteArray& header, const QString& path) {
    const qint64 pageSize = qFromBigEndian<quint16>(header.constData() + PageSizeAt);
    const qint64 length = NumberAt(header, PageCountAt) * (pageSize == 1 ? 65536 : pageSize);
    if (QFileInfo(path).size() < length)
        Refuse(SQLITE_CORRUPT, path, "its end is missing");
}

/// Only a file declared immutable is read without a lock or an index file beside it.
void CheckInsideUntouched(const QString& path) {
    const QByteArray address = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded();
    SQLite::Database database(address.toStdString() + "?immutable=1",
                              SQLite::OPEN_READONLY | SQLite::OPEN_URI);
    FileCheck::Inside(database, path);
}
} // namespace

bool FileCheck::HasJournal(const QString& path) {
    return QFileInfo(path + QLatin1String("-wal")).size() > 0 ||
           QFileInfo(path + QLatin1String("-journal")).size() > 0;
}

void FileCheck::Untouched(const QString& path, DatabaseKind kind) {
    const QByteArray header = ReadHeader(path);
    CheckHeader(header, path, kind);
    if (HasJournal(path))
        return; // what the file holds is then told by file and journal together
    CheckLength(header, path);
    CheckInsideUntouched(path);
}

void FileCheck::Inside(SQLite::Database& database, const QString& path) {
    if (database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0)
        Refuse(SQLITE_NOTADB, path, "it holds no tables");
    CheckVersion(database.execAndGet("PRAGMA user_version").getInt(), path);
}
