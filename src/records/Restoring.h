#pragma once

#include "records/RecordsLock.h"
#include "records/Snapshot.h"

/// Puts snapshots in the place of a person's records. While it lives, no other program writes
/// there. A kill or a power cut leaves sound files as before or as after.
class Restoring {
public:
    /// Fails with ErrorNumber::RecordsInUse while another program has the records open.
    explicit Restoring(const RecordsFolder& records);

    /// Checks the snapshot, keeps what is there as a snapshot of the kind Replaced, and then
    /// replaces both files and these settings. Gives the kept snapshot.
    Snapshot Put(const Snapshot& snapshot, const Snapshot::Settings& settings,
                 const QString& reason);

    /// The same for a snapshot that the caller knows to be sound.
    Snapshot PutChecked(const Snapshot& snapshot, const Snapshot::Settings& settings,
                        const QString& reason);

private:
    void ForgetDelivery() const;
    void BringInOrder() const;
    Snapshot Keep(const QString& reason) const;
    Snapshot KeepDamaged(const QString& reason) const;
    void ReplaceSound(const Snapshot& snapshot) const;
    void ReplaceDamaged(const Snapshot& snapshot) const;
    void SwapIn(const Snapshot& snapshot, const RecordsFile& file) const;

    RecordsFolder records_;
    RecordsLock lock_;
};
