#include "records/Snapshots.h"

#include "records/Disk.h"
#include "records/SnapshotRetention.h"
#include "runtime/Attempt.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {
/// Two folders of records never share their snapshots.
QString NameOf(const RecordsFolder& records) {
    constexpr int digits = 8;
    const QFileInfo folder(records.Path());
    const QString path = folder.exists() ? folder.canonicalFilePath() : folder.absoluteFilePath();
    return QString::fromLatin1(
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().left(digits));
}

QDate LocalDay(const Snapshot& snapshot) {
    return snapshot.moment.toLocalTime().date();
}

QList<QDate> DailyDays(const QList<Snapshot>& snapshots) {
    QList<QDate> days;
    for (const Snapshot& snapshot : snapshots)
        if (snapshot.kind == SnapshotKind::Daily)
            days << LocalDay(snapshot);
    return days;
}

/// Of two daily snapshots of one day the newer one is kept.
QList<Snapshot> OutOfDate(const QList<Snapshot>& snapshots) {
    QSet<QDate> days = SnapshotRetention::Kept(DailyDays(snapshots));
    QMap<SnapshotKind, int> seen;
    QList<Snapshot> old;
    for (const Snapshot& snapshot : snapshots) {
        const int kept = SnapshotKinds::Of(snapshot.kind).kept;
        const bool stays = snapshot.kind == SnapshotKind::Daily
                               ? days.remove(LocalDay(snapshot))
                               : kept == SnapshotKinds::All || ++seen[snapshot.kind] <= kept;
        if (!stays)
            old << snapshot;
    }
    return old;
}
} // namespace

Snapshots::Snapshots(const RecordsFolder& records)
    : place_(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
             "/halvane/snapshots/" + NameOf(records)) {}

QList<Snapshot> Snapshots::All() const {
    return In(place_);
}

/// The names begin with the moment. Those that are being made begin with a full stop.
QList<Snapshot> Snapshots::In(const QString& place) {
    QList<Snapshot> all;
    for (const QString& name : QDir(place).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (const auto snapshot = Snapshot::Read(place + u'/' + name))
            all << *snapshot;
    std::ranges::stable_sort(all, std::greater(), &Snapshot::moment);
    return all;
}

Snapshot Snapshots::Find(const QString& which) const {
    bool isNumber = false;
    const int number = which.toInt(&isNumber);
    const QList<Snapshot> all = All();
    if (isNumber && number >= 1 && number <= all.size())
        return all[number - 1];
    const auto latest = std::ranges::find_if(
        all, [](const Snapshot& snapshot) { return snapshot.kind != SnapshotKind::Replaced; });
    if (which == u"latest" && latest != all.end())
        return *latest;
    if (const auto given = isNumber ? std::nullopt : Snapshot::Read(which))
        return *given;
    throw RuntimeError(ErrorNumber::NoSuchElement,
                       "There is no snapshot \"" + which +
                           "\". The command `backups` lists them with their numbers.");
}

int Snapshots::NumberOf(const Snapshot& snapshot) const {
    const QList<Snapshot> all = All();
    return int(std::ranges::find(all, snapshot.path, &Snapshot::path) - all.begin()) + 1;
}

std::optional<Snapshot> Snapshots::NewestSound() const {
    for (const Snapshot& snapshot : All())
        if (Attempt([&] { snapshot.RequireSound(); }))
            return snapshot;
    return {};
}

bool Snapshots::HasDailyOf(QDate day) const {
    return DailyDays(All()).contains(day);
}

/// Another program may be removing the same one. What is left of it goes with the next snapshot.
void Snapshots::Remove(const Snapshot& snapshot) {
    const QFileInfo folder(snapshot.path);
    const QString hidden = folder.path() + "/.removing-" + folder.fileName();
    if (!Attempt([&] { Disk::Move(snapshot.path, hidden); }) && folder.exists())
        Disk::RemoveFolder(snapshot.path);
    QDir(hidden).removeRecursively();
}

void Snapshots::Prune() const {
    for (const Snapshot& snapshot : OutOfDate(All()))
        Attempt([&] { Remove(snapshot); });
}
