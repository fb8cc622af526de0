#pragma once

#include "store/Connection.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

/// Records the statements that run on a connection, as long as it exists.
class Statements {
public:
    explicit Statements(Connection& connection)
        : database_(connection.Raw().getHandle()) {
        sqlite3_trace_v2(
            database_, SQLITE_TRACE_STMT,
            [](unsigned, void* heard, void* statement, void*) {
                char* text = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
                static_cast<QStringList*>(heard)->append(QString::fromUtf8(text));
                sqlite3_free(text);
                return 0;
            },
            &list);
    }
    ~Statements() { sqlite3_trace_v2(database_, 0, nullptr, nullptr); }
    Statements(const Statements&) = delete;
    Statements& operator=(const Statements&) = delete;

    QStringList list;

private:
    sqlite3* database_;
};
