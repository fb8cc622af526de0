#include "store/Connection.h"

#include "runtime/Attempt.h"
#include "store/AmountRows.h"
#include "store/FileCheck.h"
#include "store/NameIndex.h"
#include "store/RollbackJournal.h"
#include "store/Schema.h"
#include "store/StatementCache.h"
#include "store/StoreError.h"
#include "store/TextFunctions.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

namespace {
constexpr int BusyMilliseconds = 1000;

using DatabasePtr = std::unique_ptr<SQLite::Database>;

void Configure(SQLite::Database& database, int option, int value) {
    sqlite3_db_config(database.getHandle(), option, value, nullptr);
}

/// An unknown name in double quotes is an error, not a text.
void RefuseQuotedTexts(SQLite::Database& database) {
    Configure(database, SQLITE_DBCONFIG_DQS_DML, 0);
    Configure(database, SQLITE_DBCONFIG_DQS_DDL, 0);
}

DatabasePtr OpenForWriting(const QString& path) {
    auto database = std::make_unique<SQLite::Database>(
        path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, BusyMilliseconds);
    if (sqlite3_db_readonly(database->getHandle(), "main") != 0)
        throw StoreError::Make(SQLITE_READONLY, path, {});
    RefuseQuotedTexts(*database);
    return database;
}

/// A tool may have removed a part of the index: its triggers would then refuse every change of a
/// food. If there is no room for it, the program works without it.
void RequireNameIndex(SQLite::Database& foods, const QString& path) {
    if (!NameIndex::Answers(foods))
        Attempt([&] { StoreError::Guarded(path, [&] { NameIndex::MakeAnew(foods); }); });
}

/// A connection that writes, to a file that is sound and has this schema version.
DatabasePtr OpenUpdated(const QString& path, DatabaseKind kind) {
    FileCheck::Untouched(path, kind);
    DatabasePtr database = OpenForWriting(path);
    RollbackJournal::Use(*database, path);
    Schema::Migrate(*database, kind);
    if (kind == DatabaseKind::Foods)
        RequireNameIndex(*database, path);
    return database;
}

DatabasePtr OpenUnchanged(const QString& path, DatabaseKind kind) {
    FileCheck::Untouched(path, kind);
    auto database = std::make_unique<SQLite::Database>(
        path.toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX, BusyMilliseconds);
    if (!Schema::CanBeRead(database->execAndGet("PRAGMA user_version").getInt()))
        throw StoreError::Make(SQLITE_SCHEMA, path,
                               QStringLiteral("it has another version, and is not updated here"));
    RefuseQuotedTexts(*database);
    return database;
}

bool IsForReading(SQLite::Database& database) {
    return sqlite3_db_readonly(database.getHandle(), "main") != 0;
}

} // namespace

/// An open database with its prepared statements: of one file, or of two that are open together.
struct Connection::Database {
    explicit Database(DatabasePtr opened, const QString& path)
        : raw(std::move(opened))
        , statements(raw->getHandle(), path) {
        TextFunctions::Register(raw->getHandle());
        AmountRows::Register(raw->getHandle());
    }

    DatabasePtr raw;
    StatementCache statements; ///< goes before the database that its statements are on
};

struct Connection::Impl {
    QString path;
    std::shared_ptr<Database> database;
};

Connection::Connection() = default;

Connection::~Connection() {
    Close();
}

void Connection::Open(const QString& path, DatabaseKind kind) {
    Close();
    StoreError::Guarded(path, [&] { Hold(path, OpenUpdated(path, kind)); });
}

void Connection::OpenForReading(const QString& path, DatabaseKind kind) {
    Close();
    StoreError::Guarded(path, [&] { Hold(path, OpenUnchanged(path, kind)); });
}

void Connection::OpenTogether(const QString& path, DatabaseKind kind, Connection& other) {
    Close();
    StoreError::Guarded(path, [&] {
        SQLite::Database& main = other.Raw();
        IsForReading(main) ? OpenUnchanged(path, kind) : OpenUpdated(path, kind);
        SQLite::Statement attach(main, "ATTACH ? AS together");
        attach.bind(1, path.toStdString());
        attach.exec();
        RollbackJournal::SyncFully(main, "together");
    });
    impl_ = std::make_unique<Impl>(Impl{path, other.Live().database});
}

void Connection::Close() {
    impl_.reset();
}

Connection::State Connection::state() const {
    return impl_ ? Opened : Closed;
}

QString Connection::Path() const {
    return Live().path;
}

SQLite::Database& Connection::Raw() {
    return *Live().database->raw;
}

StatementCache& Connection::Statements() {
    return Live().database->statements;
}

void Connection::Hold(const QString& path, DatabasePtr database) {
    impl_ =
        std::make_unique<Impl>(Impl{path, std::make_shared<Database>(std::move(database), path)});
}

Connection::Impl& Connection::Live() const {
    if (!impl_)
        throw RuntimeError(ErrorNumber::NotOpen, QStringLiteral("The database is not open."));
    return *impl_;
}

Connection& UserDB() {
    static Connection connection;
    return connection;
}

Connection& FoodDB() {
    static Connection connection;
    return connection;
}
