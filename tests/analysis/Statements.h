#pragma once

#include "store/Connection.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <functional>

/// Records the statements that run on a connection, as long as it exists, and tells each before it
/// runs.
class Statements {
public:
    explicit Statements(
        Connection& connection,
        std::function<void(const QString&)> starting = [](const QString&) {})
        : starting_(std::move(starting))
        , database_(connection.Raw().getHandle()) {
        sqlite3_trace_v2(
            database_, SQLITE_TRACE_STMT,
            [](unsigned, void* self, void* statement, void*) {
                char* text = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
                static_cast<Statements*>(self)->Note(QString::fromUtf8(text));
                sqlite3_free(text);
                return 0;
            },
            this);
    }
    ~Statements() { sqlite3_trace_v2(database_, 0, nullptr, nullptr); }
    Statements(const Statements&) = delete;
    Statements& operator=(const Statements&) = delete;

    QStringList list;

private:
    void Note(const QString& statement) {
        list << statement;
        starting_(statement);
    }

    std::function<void(const QString&)> starting_;
    sqlite3* database_;
};
