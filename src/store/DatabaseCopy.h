#pragma once

#include <QString>

/// Copies of a database file.
namespace DatabaseCopy {
/// Whether the copy must survive a power cut once it is made. A private copy in a new file need
/// not: if it fails, it is thrown away.
enum class Sync { Fully, No };

/// Copies the state of the last commit, also while another process has the file open and writes. A
/// file at `to` is replaced page by page, in one transaction. Fails (negative number) if one of the
/// two cannot be opened or does not become free within seconds.
void Make(const QString& from, const QString& to, Sync sync = Sync::Fully);
} // namespace DatabaseCopy
