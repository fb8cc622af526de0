#include "store/Connection.h"

#include "store/FileCheck.h"
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

DatabasePtr OpenForWriting(const QString& path) {
    auto database = std::make_unique<SQLite::Database>(
        path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, BusyMilliseconds);
    if (sqlite3_db_readonly(database->getHandle(), "main") != 0)
        throw StoreError::Make(SQLITE_READONLY, path, {});
    // An unknown name in double quotes is an error, not a text.
    Configure(*database, SQLITE_DBCONFIG_DQS_DML, 0);
    Configure(*database, SQLITE_DBCONFIG_DQS_DDL, 0);
    return database;
}

/// A journal of a killed process counts as part of the file, so the checks wait until the store has
/// read both. Closing must not merge them where the file is refused.
void CheckWithJournal(SQLite::Database& database, const QString& path) {
    Configure(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1);
    FileCheck::Inside(database, path);
    Configure(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0);
}

/// A write-ahead journal synced at each commit: one sync a commit, and what was committed is there
/// after a kill (the journal is read at the next start) and after a power cut (the sync has put it
/// on the disk). Closing merges the journal, so that the folder then holds single files.
void UseDurableJournal(SQLite::Database& database, const QString& path) {
    std::string mode;
    try {
        mode = database.execAndGet("PRAGMA journal_mode = WAL").getString();
    } catch (const SQLite::Exception& failure) {
        const int code = failure.getErrorCode();
        if (code != SQLITE_CANTOPEN && code != SQLITE_READONLY)
            throw;
    }
    if (mode != "wal")
        throw StoreError::Make(SQLITE_CANTOPEN, path,
                               QStringLiteral("its folder must allow writing, as a journal is kept "
                                              "beside it"));
    database.exec("PRAGMA synchronous = FULL");
}
} // namespace

struct Connection::Impl {
    Impl(QString file, DatabasePtr opened)
        : path(std::move(file))
        , database(std::move(opened))
        , statements(database->getHandle(), path) {}

    QString path;
    DatabasePtr database;
    StatementCache statements; ///< goes before the database that its statements are on
};

Connection::Connection() = default;

Connection::~Connection() {
    Close();
}

void Connection::Open(const QString& path, DatabaseKind kind) {
    Close();
    StoreError::Guarded(path, [&] {
        FileCheck::Untouched(path, kind);
        const bool hasJournal = FileCheck::HasJournal(path);
        DatabasePtr database = OpenForWriting(path);
        if (hasJournal)
            CheckWithJournal(*database, path);
        UseDurableJournal(*database, path);
        Schema::Migrate(*database, kind);
        TextFunctions::Register(database->getHandle());
        impl_ = std::make_unique<Impl>(path, std::move(database));
    });
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
    return *Live().database;
}

StatementCache& Connection::Statements() {
    return Live().statements;
}

Connection::Impl& Connection::Live() const {
    if (!impl_)
        throw RuntimeError(StoreError::NotOpen, QStringLiteral("The database is not open."));
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
