#pragma once

/// How the store works in a program with several threads.
namespace StoreThreads {
/// Each thread allocates memory without waiting for the others. To be called at the start of a
/// program, before the first connection.
void AllocateApart();
} // namespace StoreThreads
