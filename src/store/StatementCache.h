#pragma once

#include "store/Prepared.h"

#include <list>

/// The prepared statements of one connection, the latest used first and only so many: a statement
/// that comes again is not made ready anew. Statements of result sets pass a guard that lets them
/// read rows and do nothing else.
class StatementCache {
public:
    static constexpr size_t Capacity = 32;

    StatementCache(sqlite3* database, QString path);
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    /// A statement of a result set. It belongs to the cache and is good until the next call.
    Prepared& Query(const QString& sql);
    /// A statement that the store composed itself.
    Prepared& Command(const QString& sql);

private:
    Prepared& Find(const QByteArray& sql, bool guarded);
    static int Authorize(void* self, int action, const char*, const char*, const char*,
                         const char*);

    struct Entry {
        bool guarded;
        std::unique_ptr<Prepared> statement;
    };
    sqlite3* database_;
    QString path_;
    bool guarding_ = false;
    std::list<Entry> entries_;
};
