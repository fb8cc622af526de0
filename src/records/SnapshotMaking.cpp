#include "records/SnapshotMaking.h"

#include "records/Disk.h"
#include "records/RecordsCopy.h"
#include "records/Snapshots.h"
#include "runtime/RuntimeError.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QThread>

#include <algorithm>
#include <future>

namespace {
constexpr int Patience = 30'000; ///< milliseconds; another process copies at most so long
constexpr int Pause = 10;

Snapshot::Settings AllSettings() {
    Snapshot::Settings settings;
    for (const Setting* setting : Settings::All)
        settings[*setting] = GetRegValue(*setting);
    return settings;
}

RuntimeError NoTurn(ProcessLock::Result result, const QString& place) {
    const QString text =
        result == ProcessLock::Result::NotPossible
            ? QStringLiteral("The folder %1 cannot be written. Allow writing there, and make room "
                             "on its disk.")
            : QStringLiteral("Another program makes a snapshot in the folder %1. Try again.");
    return {ErrorNumber::FileAccess, text.arg(QDir::toNativeSeparators(place))};
}

/// What is on the disk already costs nothing.
void SyncFiles(const QString& folder) {
    for (const QString& name : QDir(folder).entryList(QDir::Files))
        Disk::Sync(folder + u'/' + name);
}
} // namespace

SnapshotMaking::SnapshotMaking(const RecordsFolder& records, const QString& place)
    : records_(records)
    , place_(place)
    , turn_(place + "/snapshots.lock") {
    Disk::MakeFolders(place);
    WaitForTurn();
    Sweep();
    others_ = Snapshots::In(place_);
    if (place == Snapshots(records).Place())
        Disk::Write(place_ + "/folder.txt", QDir(records.Path()).absolutePath().toUtf8() + '\n');
}

SnapshotMaking::~SnapshotMaking() {
    if (!made_.isEmpty())
        QDir(made_).removeRecursively();
}

void SnapshotMaking::WaitForTurn() {
    const QDeadlineTimer patience(Patience);
    ProcessLock::Result result;
    while ((result = turn_.TryLock()) == ProcessLock::Result::HeldByAnother &&
           !patience.hasExpired())
        QThread::msleep(Pause);
    if (result != ProcessLock::Result::Held)
        throw NoTurn(result, place_);
}

void SnapshotMaking::Sweep() const {
    const QDir place(place_);
    for (const QString& name :
         place.entryList({".making-*", ".removing-*"}, QDir::Dirs | QDir::Hidden))
        QDir(place.filePath(name)).removeRecursively();
}

/// No two snapshots have the same moment, so their order is always known.
Snapshot SnapshotMaking::Begin(SnapshotKind kind, const QString& reason) {
    Snapshot snapshot;
    snapshot.moment = QDateTime::currentDateTimeUtc();
    snapshot.kind = kind;
    snapshot.reason = reason;
    snapshot.boot = QString::fromLatin1(QSysInfo::bootUniqueId());
    snapshot.settings = AllSettings();
    if (!others_.isEmpty() && others_.first().moment >= snapshot.moment)
        snapshot.moment = others_.first().moment.addMSecs(1);
    made_ = place_ + "/.making-" + snapshot.FolderName();
    snapshot.path = made_;
    Disk::MakeFolder(made_);
    return snapshot;
}

/// A file that has not changed since an older snapshot is shared with it.
void SnapshotMaking::Take(Snapshot& snapshot, size_t file, Care care) const {
    const QString from = records_.File(RecordsFiles[file].name);
    const QString to = snapshot.Files().File(RecordsFiles[file].name);
    const FileState state = FileState::Of(from);
    const auto same = std::ranges::find_if(others_, [&](const Snapshot& other) {
        return !other.damaged && other.source.files[file] == state;
    });
    if (same != others_.end())
        Disk::LinkOrCopy(same->Files().File(RecordsFiles[file].name), to);
    else if (care == Care::Full)
        RecordsCopy::Make(from, to);
    else
        Disk::Copy(from, to);
    QFile::setPermissions(to, QFile::ReadOwner);
    if (FileState::Of(from) == state)
        snapshot.source.files[file] = state;
}

/// The catalogue reaches the disk while the diary, which grows, is copied.
void SnapshotMaking::TakeFiles(Snapshot& snapshot, Care care) const {
    auto foods = std::async(std::launch::async, [&] {
        Take(snapshot, 1, care);
        if (care != Care::Quick)
            Disk::Sync(snapshot.Files().Foods());
    });
    Take(snapshot, 0, care);
    foods.get();
}

/// The disk writes the copies while they are checked. Counting comes after the disk has them, so
/// that it does not delay the disk.
void SnapshotMaking::Finish(Snapshot& snapshot, Care care) const {
    const auto note = [&snapshot] {
        if (!snapshot.damaged)
            snapshot.counts = RecordsCounts::Of(snapshot.Files());
        snapshot.WriteNote();
    };
    if (care == Care::Quick)
        return note();
    const auto noteOnDisk = [&snapshot, note] {
        SyncFiles(snapshot.path);
        note();
        SyncFiles(snapshot.path);
        Disk::Sync(snapshot.path);
    };
    if (care == Care::Locked)
        return noteOnDisk();
    auto noted = std::async(std::launch::async, noteOnDisk);
    snapshot.RequireSound();
    noted.get();
}

Snapshot SnapshotMaking::Make(SnapshotKind kind, const QString& reason, Care care) {
    Snapshot snapshot = Begin(kind, reason);
    TakeFiles(snapshot, care);
    return Publish(std::move(snapshot), care);
}

Snapshot SnapshotMaking::KeepDamaged(const QString& reason) {
    Snapshot snapshot = Begin(SnapshotKind::Replaced, reason);
    snapshot.damaged = true;
    for (const RecordsFile& file : RecordsFiles)
        for (const char* ending : {"", "-journal", "-wal"}) {
            const QString name = QLatin1String(file.name) + QLatin1String(ending);
            if (QFile::exists(records_.Path() + u'/' + name))
                Disk::Copy(records_.Path() + u'/' + name, snapshot.path + u'/' + name);
        }
    return Publish(std::move(snapshot), Care::Locked);
}

Snapshot SnapshotMaking::Publish(Snapshot snapshot, Care care) {
    Finish(snapshot, care);
    const QString name = place_ + u'/' + snapshot.FolderName();
    Disk::Move(snapshot.path, name);
    if (care != Care::Quick)
        Disk::Sync(place_);
    made_.clear();
    snapshot.path = name;
    return snapshot;
}
