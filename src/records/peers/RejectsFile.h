#pragma once

#include "records/peers/Imported.h"

/// The rows that were not taken as they stand, as a table that a person can open and mend.
namespace RejectsFile {
QString Word(Reject::Kind kind); ///< "refused", "left out", "changed"
/// Replaces the file, or fails and leaves it as it was.
void Write(const QString& path, const std::vector<Reject>& rejects);
} // namespace RejectsFile
