#pragma once

#include "records/Snapshot.h"
#include "runtime/ProcessLock.h"

/// Makes snapshots of a person's records at a place. A snapshot gets its name once it is whole, so
/// a kill leaves none that is half made; what it left is removed next time. At most one process
/// makes snapshots at a place, and others wait.
class SnapshotMaking {
public:
    enum class Care {
        Full,   ///< through the store, also while the records are in use; checked and synced
        Locked, ///< nobody else may write meanwhile; synced
        Quick,  ///< nobody else may write meanwhile; a power cut may damage it
    };

    SnapshotMaking(const RecordsFolder& records, const QString& place);
    ~SnapshotMaking(); ///< removes what is half made

    Snapshot Make(SnapshotKind kind, const QString& reason, Care care = Care::Full);
    /// Keeps files that are missing or damaged as they are, with their journals.
    Snapshot KeepDamaged(const QString& reason);

private:
    void WaitForTurn();
    void Sweep() const;
    Snapshot Begin(SnapshotKind kind, const QString& reason);
    void Take(Snapshot& snapshot, size_t file, Care care) const;
    void TakeFiles(Snapshot& snapshot, Care care) const;
    void Finish(Snapshot& snapshot, Care care) const;
    Snapshot Publish(Snapshot snapshot, Care care);

    RecordsFolder records_;
    QString place_;
    ProcessLock turn_;
    QList<Snapshot> others_; ///< that were there before, newest first
    QString made_;           ///< the folder of the snapshot that is being made
};
