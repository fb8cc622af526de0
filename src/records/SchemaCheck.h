#pragma once

#include "records/Finding.h"
#include "store/Connection.h"

#include <QList>

namespace SQLite {
class Database;
}

/// What a file of this version must hold: its tables with their columns, its indexes, and the rows
/// without which the program cannot work.
namespace SchemaCheck {
/// A missing table or column keeps the screens from reading, so then the rows are not checked.
struct Result {
    bool canBeRead = true;
    QList<Finding> findings;
};

Result Run(SQLite::Database& database, DatabaseKind kind);
} // namespace SchemaCheck
