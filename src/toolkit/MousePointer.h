#pragma once

/// The mouse pointer of the whole program: an hourglass during store work. It keeps the last shape
/// that was set.
namespace MousePointer {
void SetBusy();
void SetNormal();
bool IsBusy();

/// Restores the normal pointer when the scope ends.
struct NormalAtEnd {
    NormalAtEnd() = default;
    ~NormalAtEnd() { SetNormal(); }
    NormalAtEnd(const NormalAtEnd&) = delete;
    NormalAtEnd& operator=(const NormalAtEnd&) = delete;
};
} // namespace MousePointer
