#include "disk/DiskFault.h"

#include <cerrno>

namespace {
using enum DiskCall;
constexpr DiskCall Taking[] = {Create, Write, Resize, Enter};
constexpr DiskCall Every[] = {Open, Create, Read, Write, Resize, Sync, Enter, Leave};
constexpr DiskCall Writing[] = {Write};
constexpr DiskCall Guarded[] = {Open, Create, Write, Resize, Enter, Leave};

constexpr FaultInfo Kinds[] = {
    {FaultKind::Full, "disk full", ENOSPC, Taking},
    {FaultKind::InputOutput, "I/O error", EIO, Every},
    {FaultKind::ShortWrite, "short write", ENOSPC, Writing},
    {FaultKind::Denied, "permission lost", EACCES, Guarded},
};
} // namespace

std::span<const FaultInfo> FaultKinds() {
    return Kinds;
}

const FaultInfo& Info(FaultKind kind) {
    return Kinds[static_cast<size_t>(kind)];
}
