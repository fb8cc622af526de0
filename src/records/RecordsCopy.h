#pragma once

#include <QString>

/// Copies a database file of a person's records through the store.
namespace RecordsCopy {
/// Copies the state of the last commit, also while another program has the file open. What a killed
/// program left in a journal is taken into the copy, not into the file. The copy is not synced.
void Make(const QString& from, const QString& to);
/// Also where the journal holds nothing for the file: the store cannot tell that without writing.
bool HasJournal(const QString& path);
} // namespace RecordsCopy
