#pragma once

#include "runtime/ProcessLock.h"

class RecordsFolder;

/// Holds the lock of a person's records, as long as it lives. At most one process does: the window
/// while it is open, or a command that writes.
class RecordsLock {
public:
    /// Fails with ErrorNumber::RecordsInUse, and says which program has the records open.
    explicit RecordsLock(const RecordsFolder& folder);

    static bool IsHeld(const RecordsFolder& folder);          ///< by a running process
    static bool IsHeldByCommand(const RecordsFolder& folder); ///< by halvane-data

private:
    ProcessLock lock_;
};
