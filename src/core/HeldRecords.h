#pragma once

/// The lock of the person's records, held from start to quit: meanwhile no command changes them.
namespace HeldRecords {
/// A command that changes the records is awaited for two seconds; then this fails with
/// ErrorNumber::RecordsInUse. Beside another window the program goes on without the lock.
void Take();
void Release(); ///< does nothing where it is not held
} // namespace HeldRecords
