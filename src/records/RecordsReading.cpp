#include "records/RecordsReading.h"

#include "records/RecordsCopy.h"
#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"
#include "store/Connection.h"
#include "store/FileCheck.h"
#include "store/FileHeader.h"
#include "store/Schema.h"

namespace {
bool CanBeReadInPlace(const QString& path) {
    return FileHeader::Of(path).SchemaVersion() == Schema::Version &&
           !RecordsCopy::HasJournal(path);
}

/// A private copy may be updated to this version.
QString Updated(const QString& from, const QString& to, DatabaseKind kind, bool inUse) {
    if (!inUse)
        FileCheck::Untouched(from, kind);
    RecordsCopy::Make(from, to);
    Connection().Open(to, kind);
    return to;
}

void OpenBoth(const QString& users, const QString& foods) {
    UserDB().OpenForReading(users, DatabaseKind::Users);
    FoodDB().OpenTogether(foods, DatabaseKind::Foods, UserDB());
}
} // namespace

RecordsReading::RecordsReading(const RecordsFolder& folder) {
    const bool inUse = RecordsLock::IsHeld(folder);
    if (!inUse && CanBeReadInPlace(folder.Users()) && CanBeReadInPlace(folder.Foods()))
        OpenBoth(folder.Users(), folder.Foods());
    else
        OpenCopies(folder, inUse);
}

void RecordsReading::OpenCopies(const RecordsFolder& folder, bool inUse) {
    copies_.emplace();
    const RecordsFolder copies(copies_->path());
    OpenBoth(Updated(folder.Users(), copies.Users(), DatabaseKind::Users, inUse),
             Updated(folder.Foods(), copies.Foods(), DatabaseKind::Foods, inUse));
}

RecordsReading::~RecordsReading() {
    FoodDB().Close();
    UserDB().Close();
}
