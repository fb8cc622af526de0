#pragma once

#include <span>

/// What the program asks of the system about a file.
enum class DiskCall { Open, Create, Read, Write, Resize, Sync, Enter, Leave };

enum class FaultKind { Full, InputOutput, ShortWrite, Denied };

/// A disk that fails.
struct DiskFault {
    FaultKind kind;
    int at;     ///< the call that fails, among those that can fail in this way, from 1
    bool lasts; ///< all such calls after it fail, too
};

struct FaultInfo {
    FaultKind kind;
    const char* name;
    int number; ///< that the system gives
    std::span<const DiskCall> calls;
};
std::span<const FaultInfo> FaultKinds();
const FaultInfo& Info(FaultKind kind);
