#include "records/UpgradeSnapshot.h"

#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "runtime/Attempt.h"
#include "store/FileCheck.h"
#include "store/FileHeader.h"
#include "store/Schema.h"

#include <algorithm>

namespace {
bool CanBeOpened(const RecordsFolder& records) {
    return Attempt([&] {
        for (const RecordsFile& file : RecordsFiles)
            FileCheck::Untouched(records.File(file.name), file.kind);
    });
}

bool IsOlder(const RecordsFolder& records, const RecordsFile& file) {
    return FileHeader::Of(records.File(file.name)).SchemaVersion() < Schema::Version;
}
} // namespace

void UpgradeSnapshot::MakeIfNeeded(const RecordsFolder& records) {
    if (!CanBeOpened(records) || std::ranges::none_of(RecordsFiles, [&](const RecordsFile& file) {
            return IsOlder(records, file);
        }))
        return;
    SnapshotMaking(records, Snapshots(records).Place())
        .Make(SnapshotKind::Upgrade, QStringLiteral("before an update of the files"));
    Snapshots(records).Prune();
}
