#pragma once

#include <QByteArray>

class RecordsFolder;

/// What the next start finds in a person's records.
namespace RecordsContent {
/// All rows of all tables of both files, as text, and the snapshots. Opens the files as the window
/// does, which takes in what a journal holds, and checks every page. What is not sound is a
/// RuntimeError. Snapshots before a change are left out: after a power cut they may be damaged.
QByteArray Of(const RecordsFolder& records);
} // namespace RecordsContent
