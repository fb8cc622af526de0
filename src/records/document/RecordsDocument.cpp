#include "records/document/RecordsDocument.h"

#include "records/RecordsChange.h"
#include "records/RecordsFolder.h"
#include "records/RecordsReading.h"
#include "records/RecordsTrial.h"
#include "records/document/DocumentMerge.h"
#include "records/document/DocumentReader.h"
#include "records/document/DocumentSettings.h"
#include "records/document/DocumentStage.h"
#include "store/Connection.h"
#include "store/StoreError.h"

#include <SQLiteCpp/Database.h>

#include <QFileInfo>

namespace {
bool HaveProfiles() {
    return UserDB().Raw().execAndGet("SELECT EXISTS (SELECT 1 FROM profiles)").getInt() != 0;
}

struct Merged {
    DocumentHead head;
    ImportReport report;
};

/// Into the open records.
Merged Merge(const QString& file, const RecordsDocument::ImportOptions& options,
             const RecordsDocument::Progress& progress) {
    Merged merged;
    DocumentStage stage;
    merged.head = DocumentReader::Read(file, stage, progress);
    merged.report.settings = options.settings || !HaveProfiles();
    DocumentMerge::Run(merged.head, merged.report);
    return merged;
}
} // namespace

std::map<std::string, int> RecordsDocument::Export(const RecordsFolder& folder,
                                                   const DocumentWriter::Sink& sink,
                                                   const Progress& progress) {
    const RecordsReading records(folder);
    return StoreError::Guarded(folder.Users(), [&] {
        DocumentWriter writer(sink, progress);
        writer.Write();
        return writer.Counts();
    });
}

ImportReport RecordsDocument::Import(const RecordsFolder& folder, const QString& file,
                                     const ImportOptions& options, const Progress& progress) {
    if (options.dryRun) {
        const RecordsTrial trial(folder);
        return StoreError::Guarded(folder.Users(),
                                   [&] { return Merge(file, options, progress).report; });
    }
    RecordsChange change(folder, "import " + QFileInfo(file).fileName());
    return StoreError::Guarded(folder.Users(), [&] {
        const Merged merged = Merge(file, options, progress);
        if (merged.report.settings)
            DocumentSettings::Take(merged.head.settings, change);
        change.Commit();
        return merged.report;
    });
}
