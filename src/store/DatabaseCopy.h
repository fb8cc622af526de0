#pragma once

#include <QString>

/// Copies of a database file.
namespace DatabaseCopy {
/// Copies the state of the last commit into a new file, also while another process has `from` open
/// and writes. The copy is not synced: who keeps it must do that. Fails (negative number) if one of
/// the two cannot be opened or `from` does not become free within seconds; what is at `to` must
/// then be thrown away.
void Make(const QString& from, const QString& to);
} // namespace DatabaseCopy
