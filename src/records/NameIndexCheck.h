#pragma once

#include "records/Finding.h"

#include <QList>

namespace SQLite {
class Database;
}

/// Compares the index of names with the names.
namespace NameIndexCheck {
QList<Finding> Run(SQLite::Database& foods);
}
