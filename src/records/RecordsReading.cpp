#include "records/RecordsReading.h"

#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"
#include "store/Connection.h"
#include "store/DatabaseCopy.h"
#include "store/FileCheck.h"
#include "store/FileHeader.h"
#include "store/LeftJournal.h"
#include "store/Schema.h"

#include <QFileInfo>

namespace {
/// Also where the journal holds nothing for the file: the store cannot tell that without writing.
bool HasJournal(const QString& path) {
    return QFileInfo(path + QLatin1String("-journal")).size() > 0 ||
           QFileInfo(path + QLatin1String("-wal")).size() > 0;
}

bool CanBeReadInPlace(const QString& path) {
    return FileHeader::Of(path).SchemaVersion() == Schema::Version && !HasJournal(path);
}

/// What a killed program left is taken into the copy, not into the file.
void Copy(const QString& from, const QString& to, bool inUse) {
    if (inUse || !HasJournal(from))
        return DatabaseCopy::Make(from, to, DatabaseCopy::Sync::No);
    const LeftJournal journal(from);
    if (journal.ChangesTheFile())
        journal.RequireFit();
    DatabaseCopy::Make(journal.Result(), to, DatabaseCopy::Sync::No);
}

/// A private copy may be updated to this version.
QString Updated(const QString& from, const QString& to, DatabaseKind kind, bool inUse) {
    if (!inUse)
        FileCheck::Untouched(from, kind);
    Copy(from, to, inUse);
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
