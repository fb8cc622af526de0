#include "records/RecordsCopy.h"

#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"
#include "store/DatabaseCopy.h"
#include "store/FileCheck.h"
#include "store/LeftJournal.h"

#include <QFileInfo>

bool RecordsCopy::HasJournal(const QString& path) {
    return QFileInfo(path + QLatin1String("-journal")).size() > 0 ||
           QFileInfo(path + QLatin1String("-wal")).size() > 0;
}

/// A journal beside a file that is in use belongs to the program that writes.
void RecordsCopy::Make(const QString& from, const QString& to) {
    if (!HasJournal(from) || RecordsLock::IsHeld(RecordsFolder(QFileInfo(from).path())))
        return DatabaseCopy::Make(from, to);
    const LeftJournal journal(from);
    if (journal.ChangesTheFile())
        journal.RequireFit();
    DatabaseCopy::Make(journal.Result(), to);
}

void RecordsCopy::MakeUpdated(const RecordsFolder& from, const RecordsFolder& to) {
    const bool inUse = RecordsLock::IsHeld(from);
    for (const RecordsFile& file : RecordsFiles) {
        if (!inUse)
            FileCheck::Untouched(from.File(file.name), file.kind);
        Make(from.File(file.name), to.File(file.name));
        Connection().Open(to.File(file.name), file.kind);
    }
}
