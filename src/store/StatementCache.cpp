#include "store/StatementCache.h"

#include "store/StoreError.h"

#include <QScopedValueRollback>

#include <algorithm>

#include <sqlite3.h>

StatementCache::StatementCache(sqlite3* database, QString path)
    : database_(database)
    , path_(std::move(path)) {
    sqlite3_set_authorizer(database_, Authorize, this);
}

StatementCache::~StatementCache() {
    sqlite3_set_authorizer(database_, nullptr, nullptr);
}

Prepared& StatementCache::Query(const QString& sql) {
    const QScopedValueRollback guard(guarding_, true);
    Prepared& statement = Find(sql.toUtf8(), true);
    if (sqlite3_stmt_readonly(statement.Handle()) == 0) // what the guard is not asked about
        throw StoreError::Make(SQLITE_AUTH, path_, QStringLiteral("the statement would write"));
    return statement;
}

Prepared& StatementCache::Command(const QString& sql) {
    return Find(sql.toUtf8(), false);
}

Prepared& StatementCache::Find(const QByteArray& sql, bool guarded) {
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.guarded == guarded && entry.statement->Sql() == sql;
    });
    if (known != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, known);
    } else {
        entries_.push_front({guarded, std::make_unique<Prepared>(database_, path_, sql)});
        if (entries_.size() > Capacity)
            entries_.pop_back();
    }
    Prepared& statement = *entries_.front().statement;
    statement.Reset();
    return statement;
}

/// Allows what a query needs; whatever writes, attaches, sets or changes the schema is denied, and
/// so are transactions, which would outlive the result set.
int StatementCache::Authorize(void* self, int action, const char*, const char*, const char*,
                              const char*) {
    if (!static_cast<StatementCache*>(self)->guarding_)
        return SQLITE_OK;
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}
