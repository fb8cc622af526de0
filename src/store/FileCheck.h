#pragma once

#include "store/Connection.h"

#include <QString>

/// Looks at a database file before it is opened for work, and changes nothing: not the file, and
/// not the folder that it is in. A refusal is a RuntimeError.
namespace FileCheck {
/// The file is there, a database, of that kind, of no newer version, whole in length, its tables
/// readable, and a journal beside it belongs to it.
void Untouched(const QString& path, DatabaseKind kind);
} // namespace FileCheck
