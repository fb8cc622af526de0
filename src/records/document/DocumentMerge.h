#pragma once

#include "records/document/ImportReport.h"

struct DocumentHead;

/// Merges a document from the stage into the open records. What is there already is not added
/// again: an import of the same document adds no row the second time. What is there never changes.
///
/// The same profile has the same name; the same weight has the same person and day. A food, a
/// recipe with its ingredients and an entry of the log are the same if all their values are equal.
/// What the document holds more often than the records is added as often as it is missing.
namespace DocumentMerge {
/// Fails where the document contradicts itself.
void Run(const DocumentHead& head, ImportReport& report);
} // namespace DocumentMerge
