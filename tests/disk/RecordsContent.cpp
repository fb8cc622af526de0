#include "disk/RecordsContent.h"

#include "records/Snapshots.h"
#include "store/NameIndex.h"
#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
void AppendRows(QByteArray& content, SQLite::Database& database, const std::string& table) {
    SQLite::Statement rows(database, "SELECT * FROM " + table + " ORDER BY rowid");
    while (rows.executeStep()) {
        content += table;
        for (int i = 0; i < rows.getColumnCount(); ++i) {
            const SQLite::Column value = rows.getColumn(i);
            content += '|' + QByteArray::number(value.getType()) + ':';
            content += value.getString();
        }
        content += '\n';
    }
}

void RequireIntegrity(SQLite::Database& database, const QString& path) {
    const std::string first = database.execAndGet("PRAGMA integrity_check(1)").getString();
    if (first != "ok")
        throw StoreError::Make(SQLITE_CORRUPT, path, QString::fromStdString(first));
}

void RequireNameIndex(SQLite::Database& foods, const QString& path) {
    if (!NameIndex::Answers(foods) || !NameIndex::Fits(foods))
        throw StoreError::Make(SQLITE_CORRUPT, path, QStringLiteral("its index of names"));
}

QByteArray ContentOf(SQLite::Database& database) {
    QByteArray content;
    SQLite::Statement tables(database,
                             "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT "
                             "LIKE 'FOODS_Trigrams%' ORDER BY name");
    while (tables.executeStep())
        AppendRows(content, database, tables.getColumn(0).getString());
    return content;
}

QByteArray SnapshotsOf(const RecordsFolder& records) {
    QByteArray content;
    for (const Snapshot& snapshot : Snapshots(records).All())
        if (snapshot.kind != SnapshotKind::Change) {
            if (!snapshot.damaged)
                snapshot.RequireSound();
            content += "snapshot " + (snapshot.KindName() + u' ' + snapshot.reason).toUtf8() + '\n';
        }
    return content;
}
} // namespace

QByteArray RecordsContent::Of(const RecordsFolder& records) {
    QByteArray content;
    for (const RecordsFile& file : RecordsFiles) {
        Connection connection;
        const QString path = records.File(file.name);
        connection.Open(path, file.kind);
        StoreError::Guarded(path, [&] {
            RequireIntegrity(connection.Raw(), path);
            if (file.kind == DatabaseKind::Foods)
                RequireNameIndex(connection.Raw(), path);
            content += ContentOf(connection.Raw());
        });
    }
    return content + SnapshotsOf(records);
}
