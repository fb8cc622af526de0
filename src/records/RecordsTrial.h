#pragma once

#include "store/Transaction.h"

#include <QTemporaryDir>

#include <optional>

class RecordsFolder;

/// Has private copies of a person's records open as `UserDB()` and `FoodDB()`, as long as it lives:
/// what a change would do can be tried there. The folder does not change, and nobody waits.
class RecordsTrial {
public:
    explicit RecordsTrial(const RecordsFolder& folder);
    ~RecordsTrial();
    RecordsTrial(const RecordsTrial&) = delete;
    RecordsTrial& operator=(const RecordsTrial&) = delete;

private:
    QTemporaryDir copies_;
    std::optional<Transaction> transaction_; ///< never committed: nothing need reach the disk
};
