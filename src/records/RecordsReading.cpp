#include "records/RecordsReading.h"

#include "records/RecordsCopy.h"
#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"
#include "store/Connection.h"
#include "store/FileHeader.h"
#include "store/Schema.h"

namespace {
bool CanBeReadInPlace(const QString& path) {
    return Schema::CanBeRead(FileHeader::Of(path).SchemaVersion()) &&
           !RecordsCopy::HasJournal(path);
}

void OpenBoth(const RecordsFolder& folder) {
    UserDB().OpenForReading(folder.Users(), DatabaseKind::Users);
    FoodDB().OpenTogether(folder.Foods(), DatabaseKind::Foods, UserDB());
}
} // namespace

RecordsReading::RecordsReading(const RecordsFolder& folder) {
    const bool inUse = RecordsLock::IsHeld(folder);
    if (!inUse && CanBeReadInPlace(folder.Users()) && CanBeReadInPlace(folder.Foods()))
        OpenBoth(folder);
    else
        OpenCopies(folder);
}

void RecordsReading::OpenCopies(const RecordsFolder& folder) {
    copies_.emplace();
    const RecordsFolder copies(copies_->path());
    RecordsCopy::MakeUpdated(folder, copies);
    OpenBoth(copies);
}

RecordsReading::~RecordsReading() {
    FoodDB().Close();
    UserDB().Close();
}
