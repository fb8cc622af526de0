#pragma once

#include "records/document/DocumentWriter.h"
#include "records/document/ImportReport.h"

class RecordsFolder;

/// All records of a person as one file: profiles, own foods, recipes, log, weights and settings.
/// docs/records-format.md describes it.
namespace RecordsDocument {
using Progress = DocumentWriter::Progress;

/// Gives the number of rows of each section.
std::map<std::string, int> Export(const RecordsFolder& folder, const DocumentWriter::Sink& sink,
                                  const Progress& progress);

/// Settings are taken where the records hold no profile, and where they are asked for.
struct ImportOptions {
    bool settings = false;
    bool dryRun = false; ///< tells what would happen, and changes nothing
};
/// One change: all of it happens, or nothing.
ImportReport Import(const RecordsFolder& folder, const QString& file, const ImportOptions& options,
                    const Progress& progress);
} // namespace RecordsDocument
