#pragma once

#include "records/document/DocumentSection.h"

/// Which key a row of a document has in the records: a temporary table for each section with keys.
namespace DocumentKeys {
void Make();
std::string Table(const DocumentSection& section); ///< columns `old` and `new`
void Note(const DocumentSection& section, std::int64_t old, std::int64_t now);
/// Lets a column of staged rows refer to the rows of the records.
void Follow(const DocumentSection& rows, const char* column, const DocumentSection& referred,
            const char* condition = "TRUE");
} // namespace DocumentKeys
