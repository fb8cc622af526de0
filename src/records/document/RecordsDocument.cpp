#include "records/document/RecordsDocument.h"

#include "records/RecordsChange.h"
#include "records/RecordsFolder.h"
#include "records/RecordsReading.h"
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
    RecordsChange change(folder, "import " + QFileInfo(file).fileName());
    return StoreError::Guarded(folder.Users(), [&] {
        ImportReport report;
        DocumentStage stage;
        const DocumentHead head = DocumentReader::Read(file, stage, progress);
        report.settings = options.settings || !HaveProfiles();
        DocumentMerge::Run(head, report);
        if (options.dryRun)
            return report;
        if (report.settings)
            DocumentSettings::Take(head.settings, change);
        change.Commit();
        return report;
    });
}
