#pragma once

#include "records/document/DocumentSection.h"
#include "records/document/ImportReport.h"

/// Takes the staged rows of a section without keys into the open records.
namespace CountedMerge {
/// Adds each row as often as the document holds it more often than the records.
void Run(const DocumentSection& section, ImportReport& report);
} // namespace CountedMerge
