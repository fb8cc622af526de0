#include "store/FileCheck.h"

#include "store/FileHeader.h"
#include "store/LeftJournal.h"
#include "store/Schema.h"
#include "store/StoreError.h"
#include "store/UnchangedFile.h"

#include <QFileInfo>

#include <sqlite3.h>

namespace {
[[noreturn]] void Refuse(int code, const QString& path, const char* why) {
    throw StoreError::Make(code, path, QString::fromLatin1(why));
}

void CheckVersion(int version, const QString& path) {
    if (version > Schema::Version)
        Refuse(SQLITE_NOTADB, path, "it was made by a newer version of the program");
}

void CheckHeader(const FileHeader& header, const QString& path, DatabaseKind kind) {
    if (header.IsEmpty())
        Refuse(SQLITE_NOTADB, path, "it is empty");
    if (!header.IsOfDatabase())
        Refuse(SQLITE_NOTADB, path, "it is not a database");
    if (!header.IsWhole())
        Refuse(SQLITE_CORRUPT, path, "its end is missing");
    if (header.ApplicationId() != Schema::ApplicationId(kind))
        Refuse(SQLITE_NOTADB, path, "it is a database of another kind");
    CheckVersion(header.SchemaVersion(), path);
}

void CheckInside(UnchangedFile& database, const QString& path) {
    if (database.Number("SELECT count(*) FROM sqlite_schema") == 0)
        Refuse(SQLITE_NOTADB, path, "it holds no tables");
    CheckVersion(int(database.Number("PRAGMA user_version")), path);
}

/// The store reads a file without a lock and without an index file only if it is declared
/// immutable. It reads a truncated last page as a full one, so the length comes from the header.
void CheckAlone(const QString& file, const QString& path) {
    if (QFileInfo(file).size() < FileHeader::Of(file).Length())
        Refuse(SQLITE_CORRUPT, path, "its end is missing");
    UnchangedFile database(file, path);
    CheckInside(database, path);
}
} // namespace

void FileCheck::Untouched(const QString& path, DatabaseKind kind) {
    CheckHeader(FileHeader::Of(path), path, kind);
    const LeftJournal journal(path);
    if (!journal.ChangesTheFile())
        return CheckAlone(path, path);
    journal.RequireFit();
    CheckAlone(journal.Result(), path);
}
