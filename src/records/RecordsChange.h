#pragma once

#include "records/RecordsLock.h"
#include "records/Snapshot.h"
#include "store/Transaction.h"

#include <optional>

/// Has a person's records open as `UserDB()` and `FoodDB()`, for one change of both files, as long
/// as it lives. What is not committed is taken back. A snapshot is made before, so that `undo` can
/// take back what is committed.
class RecordsChange {
public:
    /// `title` names the change in the list of snapshots. Fails with ErrorNumber::RecordsInUse
    /// while another program has the records open.
    explicit RecordsChange(const RecordsFolder& folder,
                           const QString& title = QStringLiteral("change"));
    ~RecordsChange();
    RecordsChange(const RecordsChange&) = delete;
    RecordsChange& operator=(const RecordsChange&) = delete;

    void Set(const QString& setting, const QString& value); ///< once the change is committed
    void Commit();

private:
    void Open();
    void NoteChange();

    RecordsFolder folder_;
    RecordsLock lock_;
    Snapshot before_;
    Snapshot::Settings settings_; ///< to be set
    bool committed_ = false;
    std::optional<Transaction> transaction_;
};
