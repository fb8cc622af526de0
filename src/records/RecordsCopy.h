#pragma once

#include <QString>

class RecordsFolder;

/// Copies the database files of a person's records through the store.
namespace RecordsCopy {
/// Copies the state of the last commit, also while another program has the file open. What a killed
/// program left in a journal is taken into the copy, not into the file. The copy is not synced.
void Make(const QString& from, const QString& to);
/// The same for both files. The copies get this version of the tables.
void MakeUpdated(const RecordsFolder& from, const RecordsFolder& to);
/// Also where the journal holds nothing for the file: the store cannot tell that without writing.
bool HasJournal(const QString& path);
} // namespace RecordsCopy
