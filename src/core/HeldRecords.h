#pragma once

/// The lock of the person's records, held from start to quit: meanwhile no command changes them.
namespace HeldRecords {
/// Waits up to two seconds for a command that changes the records, then fails with
/// ErrorNumber::RecordsInUse. If another window holds the lock, the program goes on without it.
void Take();
bool AreHeld();
void Release(); ///< does nothing if it is not held
} // namespace HeldRecords
