#include "store/ReadTransaction.h"

#include "store/Connection.h"
#include "store/StoreError.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <sqlite3.h>

ReadTransaction::ReadTransaction(Connection& connection) {
    SQLite::Database& database = connection.Raw();
    if (sqlite3_get_autocommit(database.getHandle()) != 0)
        own_ = StoreError::Guarded(connection.Path(),
                                   [&] { return std::make_unique<SQLite::Transaction>(database); });
}

ReadTransaction::~ReadTransaction() = default;
