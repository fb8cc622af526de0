#include "store/Schema.h"

#include "store/RollbackJournal.h"
#include "store/SchemaSteps.h"
#include "store/StoreError.h"

#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
void Run(SQLite::Database& database, const char* step, int version) {
    SQLite::Transaction transaction(database);
    database.exec(step);
    database.exec("PRAGMA user_version = " + std::to_string(version));
    transaction.commit();
}
} // namespace

bool Schema::CanBeRead(int version) {
    return version >= OldestReadable && version <= Version;
}

qint32 Schema::ApplicationId(DatabaseKind kind) {
    return kind == DatabaseKind::Users ? 0x48414C55 : 0x48414C46;
}

void Schema::Create(const QString& path, DatabaseKind kind) {
    if (QFile::exists(path))
        throw StoreError::Make(SQLITE_CANTOPEN, path, QStringLiteral("it is there already"));
    StoreError::Guarded(path, [&] {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        RollbackJournal::Use(database, path);
        database.exec("PRAGMA application_id = " + std::to_string(ApplicationId(kind)));
        Migrate(database, kind);
    });
}

void Schema::Migrate(SQLite::Database& database, DatabaseKind kind) {
    Migrate(database, kind, SchemaSteps());
}

void Schema::Migrate(SQLite::Database& database, DatabaseKind kind, std::span<const Step> steps) {
    const int from = database.execAndGet("PRAGMA user_version").getInt();
    for (size_t i = static_cast<size_t>(from); i < steps.size(); ++i)
        Run(database, kind == DatabaseKind::Users ? steps[i].users : steps[i].foods,
            static_cast<int>(i) + 1);
}
