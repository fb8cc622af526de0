#include "records/UpgradeSnapshot.h"

#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "runtime/Attempt.h"
#include "store/FileCheck.h"
#include "store/FileHeader.h"
#include "store/Schema.h"

#include <QFileInfo>

#include <algorithm>

namespace {
bool CanBeOpened(const RecordsFolder& records) {
    return Attempt([&] {
        for (const RecordsFile& file : RecordsFiles)
            FileCheck::Untouched(records.File(file.name), file.kind);
    });
}

bool IsOlder(const QString& path) {
    return QFileInfo(path).isFile() && FileHeader::Of(path).SchemaVersion() < Schema::Version;
}
} // namespace

bool UpgradeSnapshot::IsNeeded(const RecordsFolder& records) {
    const auto isOlder = [&](const RecordsFile& file) { return IsOlder(records.File(file.name)); };
    return std::ranges::any_of(RecordsFiles, isOlder) && CanBeOpened(records);
}

void UpgradeSnapshot::MakeIfNeeded(const RecordsFolder& records) {
    if (!IsNeeded(records))
        return;
    SnapshotMaking(records, Snapshots(records).Place())
        .Make(SnapshotKind::Upgrade, QStringLiteral("before an update of the files"));
    Snapshots(records).Prune();
}
