#include "records/Restoring.h"

#include "records/Disk.h"
#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "records/SoundRecords.h"
#include "runtime/RuntimeError.h"
#include "runtime/Settings.h"
#include "store/ContentReplacement.h"
#include "store/FileBytes.h"
#include "store/FileCheck.h"
#include "store/RollbackJournal.h"
#include "store/StoreError.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <optional>

namespace {
void PutSettings(const Snapshot::Settings& settings) {
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        if (GetRegValue(setting.key()) != setting.value())
            SetRegValue(setting.key(), setting.value());
}
} // namespace

Restoring::Restoring(const RecordsFolder& records)
    : records_(records)
    , lock_(records) {}

Snapshot Restoring::Put(const Snapshot& snapshot, const Snapshot::Settings& settings,
                        const QString& reason) {
    snapshot.RequireSound();
    return PutChecked(snapshot, settings, reason);
}

Snapshot Restoring::PutChecked(const Snapshot& snapshot, const Snapshot::Settings& settings,
                               const QString& reason) {
    std::optional<Snapshot> kept;
    ForgetDelivery();
    try {
        BringInOrder();
        kept = Keep(reason);
        ReplaceSound(snapshot);
    } catch (const RuntimeError& failure) {
        if (!SoundRecords::MeansDamage(failure, records_))
            throw;
        if (!kept)
            kept = KeepDamaged(reason);
        ReplaceDamaged(snapshot);
    }
    PutSettings(settings);
    Snapshots(records_).Prune();
    return *kept;
}

/// The stock foods of a snapshot may be older ones. The next start compares them.
void Restoring::ForgetDelivery() const {
    if (QFile::exists(records_.Delivery()))
        Disk::Write(records_.Delivery(), {});
}

/// Takes in what a killed program left in a journal, and proves that the folder can be written.
void Restoring::BringInOrder() const {
    for (const RecordsFile& file : RecordsFiles) {
        const QString path = records_.File(file.name);
        FileCheck::Untouched(path, file.kind);
        StoreError::Guarded(path, [&] {
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
            RollbackJournal::Use(database, path);
        });
    }
}

Snapshot Restoring::Keep(const QString& reason) const {
    return SnapshotMaking(records_, Snapshots(records_).Place())
        .Make(SnapshotKind::Replaced, reason, SnapshotMaking::Care::Locked);
}

Snapshot Restoring::KeepDamaged(const QString& reason) const {
    return SnapshotMaking(records_, Snapshots(records_).Place()).KeepDamaged(reason);
}

/// One file is swapped in one step. For two, a transaction covers both.
void Restoring::ReplaceSound(const Snapshot& snapshot) const {
    QList<RecordsFile> different;
    std::ranges::copy_if(RecordsFiles, std::back_inserter(different), [&](const RecordsFile& file) {
        return !FileBytes::Same(records_.File(file.name), snapshot.Files().File(file.name));
    });
    if (different.size() == 1)
        return SwapIn(snapshot, different.first());
    QList<ContentReplacement::File> files;
    for (const RecordsFile& file : different)
        files.push_back({records_.File(file.name), snapshot.Files().File(file.name)});
    if (!files.isEmpty())
        ContentReplacement::Run(files);
}

/// What is left in the journals of the damaged files must not get into the new ones.
void Restoring::ReplaceDamaged(const Snapshot& snapshot) const {
    for (const RecordsFile& file : RecordsFiles)
        for (const char* ending : {"-journal", "-wal", "-shm"})
            Disk::Remove(records_.File(file.name) + QLatin1String(ending));
    Disk::Sync(records_.Path());
    for (const RecordsFile& file : RecordsFiles)
        SwapIn(snapshot, file);
}

void Restoring::SwapIn(const Snapshot& snapshot, const RecordsFile& file) const {
    const QFileInfo old(records_.File(file.name));
    const QString path = old.exists() ? old.canonicalFilePath() : old.absoluteFilePath();
    const QString made = records_.BeingMade(file);
    const auto rights = QFile::ReadOwner | QFile::WriteOwner;
    try {
        Disk::Copy(snapshot.Files().File(file.name), made);
        QFile::setPermissions(made, old.exists() ? old.permissions() | rights : rights);
        Disk::Sync(made);
        Disk::Move(made, path);
        Disk::Sync(QFileInfo(path).path());
    } catch (const RuntimeError&) {
        QFile::remove(made);
        throw;
    }
}
