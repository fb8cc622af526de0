#include "store/StatementCache.h"

#include "store/Dialect.h"
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

StatementCache::Query StatementCache::Read(const QString& source, bool updatable) {
    const QScopedValueRollback guard(guarding_, true);
    Entry& entry = Find(updatable ? Use::Updating : Use::Reading, source);
    if (sqlite3_stmt_readonly(entry.statement->Handle()) == 0) // the guard does not see these
        throw StoreError::Make(SQLITE_AUTH, path_, QStringLiteral("the statement would write"));
    return {*entry.statement, entry.table};
}

Prepared& StatementCache::Command(const QString& sql) {
    return *Find(Use::Command, sql).statement;
}

StatementCache::Entry& StatementCache::Find(Use use, const QString& source) {
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.use == use && entry.source == source;
    });
    if (known != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, known);
    } else {
        entries_.push_front(MakeReady(use, source));
        if (entries_.size() > Capacity)
            entries_.pop_back();
    }
    entries_.front().statement->Reset();
    return entries_.front();
}

StatementCache::Entry StatementCache::MakeReady(Use use, const QString& source) const {
    const Dialect::Statement adapted = use == Use::Command
                                           ? Dialect::Statement{source, {}}
                                           : Dialect::Adapt(source, use == Use::Updating);
    return {use, source, adapted.table,
            std::make_unique<Prepared>(database_, path_, adapted.sql.toUtf8())};
}

/// Allows what a query needs. Denies everything that writes, attaches, sets or changes the schema,
/// and transactions, which would outlive the result set.
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
