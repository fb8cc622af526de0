#include "store/Connection.h"

#include "store/FileCheck.h"
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
        DatabasePtr database = OpenForWriting(path);
        RollbackJournal::Use(*database, path);
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
