#pragma once

#include "records/Snapshot.h"

/// The snapshots of a person's records. They lie in the data folder of the user, not in that of the
/// program: what happens to the one does not happen to the other.
class Snapshots {
public:
    explicit Snapshots(const RecordsFolder& records);

    const QString& Place() const { return place_; } ///< the folder of the snapshots
    QList<Snapshot> All() const;                    ///< newest first; the first has the number 1
    static QList<Snapshot> In(const QString& place);

    /// A number of the list, the path of a snapshot, or `latest`: the newest that is not what
    /// another one has replaced. Fails with ErrorNumber::NoSuchElement if there is none.
    Snapshot Find(const QString& which) const;
    int NumberOf(const Snapshot& snapshot) const;

    /// The newest whose files are sound. Each is checked, from the newest on.
    std::optional<Snapshot> NewestSound() const;
    bool HasDailyOf(QDate day) const;

    /// A kill meanwhile leaves none that is half there.
    static void Remove(const Snapshot& snapshot);
    /// Removes those that are not kept any longer. One that cannot be removed stays.
    void Prune() const;

private:
    QString place_;
};
