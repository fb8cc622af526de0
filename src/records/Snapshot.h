#pragma once

#include "records/RecordsCounts.h"
#include "records/RecordsFolder.h"
#include "records/RecordsState.h"
#include "records/SnapshotKind.h"

#include <QDateTime>
#include <QMap>

#include <optional>

/// A copy of a person's records in a folder of its own: both files, the settings, and a note that
/// tells what it is. The files never change, because snapshots may share them.
struct Snapshot {
    using Settings = QMap<QString, QString>; ///< value by name

    QString path;     ///< of its folder
    QDateTime moment; ///< in UTC
    SnapshotKind kind = SnapshotKind::Manual;
    QString reason;
    bool damaged = false; ///< kept as the files were, though they cannot be read
    QString boot;         ///< the run of the system in which it was made
    RecordsCounts counts;
    RecordsState source; ///< the files that it is a copy of
    Settings settings;

    /// What the change left that this snapshot was made before.
    struct Change {
        RecordsState after;
        Settings settings; ///< those that it changed, with their new values
    };
    std::optional<Change> change;

    /// A folder that holds only the two files counts as made by hand, unless it has a name of ours.
    static std::optional<Snapshot> Read(const QString& path);
    void WriteNote() const;

    RecordsFolder Files() const { return RecordsFolder(path); }
    qint64 Bytes() const; ///< of both files
    QString KindName() const;
    QString FolderName() const; ///< "20261122T051033123Z-daily"
    QString When() const;       ///< "2026-11-22 05:10:33", local time
    QString Title() const;      ///< "the snapshot of 2026-11-22 05:10:33 (daily)", for a sentence
    /// Since the system was started anew, bytes that were not synced may be lost.
    bool MayHaveLostBytes() const;
    /// Fails unless both files are whole and sound, and of a version that this program knows.
    void RequireSound() const;
};
