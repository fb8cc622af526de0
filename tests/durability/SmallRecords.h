#pragma once

#include <QByteArray>
#include <QString>

/// The delivered files with few foods, so that each check of them is short, and one person.
namespace SmallRecords {
void LayOut(const QString& folder);
void CopyTo(const QString& folder, const QString& from); ///< replaces what is there
/// Opens the files as the next start does, which takes back an unfinished write.
void OpenBoth(const QString& folder);
void CloseBoth();
/// All rows of both files as one short text, and what is wrong with their pages.
QByteArray Contents(const QString& folder);
/// True if no journal is left: a kill did not come in the middle of a write.
bool StandAlone(const QString& folder);
} // namespace SmallRecords
