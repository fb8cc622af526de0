#pragma once

class RecordsFolder;
class RuntimeError;

/// Whether a person's records can be read to the last page. Nothing changes.
namespace SoundRecords {
/// Fails unless both files are sound and of a version that this program knows. Nobody may write
/// there meanwhile.
void Require(const RecordsFolder& folder);

/// Whether a failure to open or to check a file means that it is missing or damaged, and not that
/// it is in use or not allowed.
bool MeansDamage(const RuntimeError& failure, const RecordsFolder& folder);
} // namespace SoundRecords
