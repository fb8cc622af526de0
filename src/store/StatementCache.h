#pragma once

#include "store/Prepared.h"

#include <list>

/// The prepared statements of a connection, the most recent first, up to a fixed number: a repeated
/// statement is neither adapted nor prepared again. Statements of result sets pass a guard that
/// allows only reading rows.
class StatementCache {
public:
    static constexpr size_t Capacity = 32;

    StatementCache(sqlite3* database, QString path);
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    struct Query {
        Prepared& statement; ///< belongs to the cache and is good until the next call
        QString table;       ///< of an updatable set; empty for one that only reads
    };
    /// A result set's statement, in the dialect.
    Query Read(const QString& source, bool updatable);
    /// A statement of the store itself; valid until the next call.
    Prepared& Command(const QString& sql);

private:
    enum class Use { Command, Reading, Updating };
    struct Entry {
        Use use;
        QString source;
        QString table;
        std::unique_ptr<Prepared> statement;
    };
    Entry& Find(Use use, const QString& source);
    Entry MakeReady(Use use, const QString& source) const;
    static int Authorize(void* self, int action, const char*, const char*, const char*,
                         const char*);

    sqlite3* database_;
    QString path_;
    bool guarding_ = false;
    std::list<Entry> entries_;
};
