#pragma once

/// The mouse pointer of the whole program: an hourglass around store work, else the normal one.
/// It stays as it was last set, whoever set it.
namespace MousePointer {
void SetBusy();
void SetNormal();
bool IsBusy();

/// Back to normal at the end of a routine, by whatever way that ends.
struct NormalAtEnd {
    NormalAtEnd() = default;
    ~NormalAtEnd() { SetNormal(); }
    NormalAtEnd(const NormalAtEnd&) = delete;
    NormalAtEnd& operator=(const NormalAtEnd&) = delete;
};
} // namespace MousePointer
