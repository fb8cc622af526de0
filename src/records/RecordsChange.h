#pragma once

#include "records/RecordsLock.h"
#include "store/Transaction.h"

#include <optional>

/// Has a person's records open as `UserDB()` and `FoodDB()`, for one change of both files, as long
/// as it lives. What is not committed is taken back.
class RecordsChange {
public:
    /// Fails with ErrorNumber::RecordsInUse while another program has the records open.
    explicit RecordsChange(const RecordsFolder& folder);
    ~RecordsChange();
    RecordsChange(const RecordsChange&) = delete;
    RecordsChange& operator=(const RecordsChange&) = delete;

    void Commit();

private:
    RecordsLock lock_;
    std::optional<Transaction> transaction_;
};
