#pragma once

class RecordsFolder;

/// A snapshot of the kind Upgrade: of files that this version of the program will change to its own
/// form when it opens them.
namespace UpgradeSnapshot {
/// Whether a file is of an older version, and both can be opened.
bool IsNeeded(const RecordsFolder& records);
/// Nobody may have the files open. Does nothing where no file is of an older version, and where one
/// cannot be opened at all.
void MakeIfNeeded(const RecordsFolder& records);
} // namespace UpgradeSnapshot
