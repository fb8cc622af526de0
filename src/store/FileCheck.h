#pragma once

#include "store/Connection.h"

#include <QString>

/// Checks a database file before it is opened. Changes neither the file nor its folder. A refusal
/// is a RuntimeError.
namespace FileCheck {
/// Fails unless the file exists, is a database of that kind and of no newer version, has its full
/// length and readable tables, and a journal beside it belongs to it.
void Untouched(const QString& path, DatabaseKind kind);
} // namespace FileCheck
